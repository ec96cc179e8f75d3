// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuObserverList.h"

#include "platform/lumora/base/LuPool.h"

#include <new>

namespace {

constexpr std::uint32_t ORDERED_LENGTH = 16;
constexpr std::uint32_t FIRST_CAPACITY = 3;
constexpr std::uint32_t NOT_FOUND = 0xFFFFFFFF;

/// Looks from both ends at once: nodes that came together go together, so the one sought is near an end.
std::uint32_t findFromEnds(const std::uintptr_t* list, std::uint32_t length, std::uintptr_t bits) {
    std::uint32_t low = 0;
    std::uint32_t high = length;
    while (low < high) {
        if (list[low] == bits)
            return low;
        if (list[--high] == bits)
            return high;
        ++low;
    }
    return NOT_FOUND;
}

} // namespace

LuObserverList::~LuObserverList() {
    if (isMany())
        freeMany(getMany());
}

LuObserverList::Many* LuObserverList::makeMany(std::uint32_t capacity) {
    return new (LuPool::allocate(getManySize(capacity))) Many{0, capacity};
}

void LuObserverList::freeMany(Many* many) { LuPool::deallocate(many, getManySize(many->capacity)); }

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
    return findFromEnds(getMany()->entries(), getMany()->length, observer.m_bits) != NOT_FOUND;
}

void LuObserverList::add(LuObserver observer) {
    if (m_bits == 0) {
        m_bits = observer.m_bits;
        return;
    }
    if (!isMany()) {
        Many* const many = makeMany(FIRST_CAPACITY);
        many->entries()[many->length++] = m_bits;
        setMany(many);
    } else if (getMany()->length == getMany()->capacity) {
        Many* const before = getMany();
        Many* const many = makeMany(before->capacity * 2);
        std::copy_n(before->entries(), before->length, many->entries());
        many->length = before->length;
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
    const std::uint32_t index = findFromEnds(entries, many->length, observer.m_bits);
    if (index == NOT_FOUND)
        return;
    if (many->length <= ORDERED_LENGTH)
        std::copy(entries + index + 1, entries + many->length, entries + index);
    else
        entries[index] = entries[many->length - 1];
    if (--many->length == 1) {
        m_bits = entries[0];
        freeMany(many);
    }
}
