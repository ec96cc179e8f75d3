// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuObserverList.h"

namespace {

constexpr std::size_t ORDERED_LENGTH = 16;
constexpr std::size_t NOT_FOUND = static_cast<std::size_t>(-1);

/// Looks from both ends at once: nodes that came together go together, so the one sought is near an end.
std::size_t findFromEnds(const std::vector<LuObserver>& list, LuObserver observer) {
    std::size_t low = 0;
    std::size_t high = list.size();
    while (low < high) {
        if (list[low] == observer)
            return low;
        if (list[--high] == observer)
            return high;
        ++low;
    }
    return NOT_FOUND;
}

} // namespace

LuObserverList::~LuObserverList() {
    if (isMany())
        delete &getMany();
}

int LuObserverList::getLength() const {
    if (isMany())
        return static_cast<int>(getMany().size());
    return m_bits == 0 ? 0 : 1;
}

LuObserver LuObserverList::operator[](int index) const {
    return isMany() ? getMany()[static_cast<std::size_t>(index)] : LuObserver(m_bits);
}

bool LuObserverList::contains(LuObserver observer) const {
    return isMany() ? findFromEnds(getMany(), observer) != NOT_FOUND : m_bits == observer.m_bits;
}

void LuObserverList::add(LuObserver observer) {
    if (m_bits == 0) {
        m_bits = observer.m_bits;
        return;
    }
    if (!isMany()) {
        auto* many = new Many{LuObserver(m_bits), observer};
        m_bits = reinterpret_cast<std::uintptr_t>(many) | MANY;
        return;
    }
    getMany().push_back(observer);
}

void LuObserverList::remove(LuObserver observer) {
    if (!isMany()) {
        if (m_bits == observer.m_bits)
            m_bits = 0;
        return;
    }
    Many& many = getMany();
    const std::size_t index = findFromEnds(many, observer);
    if (index == NOT_FOUND)
        return;
    if (many.size() <= ORDERED_LENGTH) {
        many.erase(many.begin() + static_cast<std::ptrdiff_t>(index));
    } else {
        many[index] = many.back();
        many.pop_back();
    }
    if (many.size() == 1) {
        const std::uintptr_t last = many.front().m_bits;
        delete &many;
        m_bits = last;
    }
}
