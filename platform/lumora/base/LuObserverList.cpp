// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuObserverList.h"

#include "platform/lumora/base/LuPool.h"

#include <new>

namespace {

constexpr std::uint32_t ORDERED_LENGTH = 16;
constexpr std::uint32_t FARTHEST_PLACE = (1U << 27) - 1;

} // namespace

std::uint32_t LuObserverList::Many::find(std::uintptr_t bits) {
    const std::uintptr_t* const list = entries();
    std::uint32_t low = 0;
    std::uint32_t below = std::min<std::uint32_t>(lastPlace, length);
    std::uint32_t above = below;
    std::uint32_t high = length;
    while (low < below || above < high) {
        if (low < below) {
            if (list[low] == bits)
                return low;
            if (list[--below] == bits)
                return below;
            ++low;
        }
        if (above < high) {
            if (list[above] == bits)
                return above;
            if (list[--high] == bits)
                return high;
            ++above;
        }
    }
    return NOT_FOUND;
}

LuObserverList::~LuObserverList() {
    if (isMany())
        freeMany(getMany());
}

LuObserverList::Many* LuObserverList::makeMany(std::uint32_t doublings) {
    return new (LuPool::allocate(getManySize(FIRST_CAPACITY << doublings))) Many{0, doublings, 0};
}

void LuObserverList::freeMany(Many* many) { LuPool::deallocate(many, getManySize(many->getCapacity())); }

int LuObserverList::getLength() const {
    if (isMany())
        return static_cast<int>(getMany()->length);
    return m_bits == 0 ? 0 : 1;
}

LuObserver LuObserverList::operator[](int index) const {
    return LuObserver(isMany() ? getMany()->entries()[index] : m_bits);
}

bool LuObserverList::contains(LuObserver observer) const {
    if (!isMany())
        return m_bits == observer.m_bits;
    return getMany()->find(observer.m_bits) != NOT_FOUND;
}

void LuObserverList::add(LuObserver observer) {
    if (m_bits == 0) {
        m_bits = observer.m_bits;
        return;
    }
    if (!isMany()) {
        Many* const many = makeMany(0);
        many->entries()[many->length++] = m_bits;
        setMany(many);
    } else if (getMany()->length == getMany()->getCapacity()) {
        Many* const before = getMany();
        Many* const many = makeMany(before->doublings + 1);
        std::copy_n(before->entries(), before->length, many->entries());
        many->length = before->length;
        many->lastPlace = before->lastPlace;
        freeMany(before);
        setMany(many);
    }
    Many* const many = getMany();
    many->entries()[many->length++] = observer.m_bits;
}

void LuObserverList::remove(LuObserver observer) {
    if (!isMany()) {
        if (m_bits == observer.m_bits)
            m_bits = 0;
        return;
    }
    Many* const many = getMany();
    std::uintptr_t* const entries = many->entries();
    const std::uint32_t index = many->find(observer.m_bits);
    if (index == NOT_FOUND)
        return;
    const std::uint32_t last = many->length - 1;
    if (many->length <= ORDERED_LENGTH) {
        std::copy(entries + index + 1, entries + many->length, entries + index);
    } else {
        entries[index] = entries[last];
        // The end is looked at in any case: what comes and goes there doesn't lead the search away.
        if (index + ORDERED_LENGTH < last)
            many->lastPlace = std::min(index, FARTHEST_PLACE);
    }
    if (--many->length == 1) {
        m_bits = entries[0];
        freeMany(many);
    }
}
