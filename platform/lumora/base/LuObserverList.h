// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

class LuBase;
class LuField;
class LuSensor;

/// Who is told of a change: a node above, a field that holds the node or is connected, or a sensor.
class LuObserver {
public:
    enum class Kind : std::uintptr_t { NODE = 0, FIELD = 1, SENSOR = 2 };

    explicit LuObserver(LuBase* node) : LuObserver(node, Kind::NODE) {}
    explicit LuObserver(LuField* field) : LuObserver(field, Kind::FIELD) {}
    explicit LuObserver(LuSensor* sensor) : LuObserver(sensor, Kind::SENSOR) {}

    Kind getKind() const { return static_cast<Kind>(m_bits & KIND_MASK); }
    LuBase* getNode() const { return static_cast<LuBase*>(getPointer()); }
    LuField* getField() const { return static_cast<LuField*>(getPointer()); }
    LuSensor* getSensor() const { return static_cast<LuSensor*>(getPointer()); }

    friend bool operator==(LuObserver, LuObserver) = default;

private:
    friend class LuObserverList;
    static constexpr std::uintptr_t KIND_MASK = 3;

    explicit LuObserver(std::uintptr_t bits) : m_bits(bits) {}
    LuObserver(void* pointer, Kind kind)
        : m_bits(reinterpret_cast<std::uintptr_t>(pointer) | static_cast<std::uintptr_t>(kind)) {}
    void* getPointer() const { return reinterpret_cast<void*>(m_bits & ~KIND_MASK); }

    std::uintptr_t m_bits;
};

/// The observers of a node or a field, in the size of one pointer: none and one, by far the most frequent
/// numbers, need no memory of their own.
class LuObserverList {
public:
    LuObserverList() = default;
    LuObserverList(const LuObserverList&) = delete;
    LuObserverList& operator=(const LuObserverList&) = delete;
    ~LuObserverList();

    bool isEmpty() const { return m_bits == 0; }

    /// True when one entry of the observer is all that there is.
    bool holdsOnly(LuObserver observer) const { return m_bits == observer.m_bits; }
    int getLength() const;
    LuObserver operator[](int index) const;
    bool contains(LuObserver observer) const;

    /// An observer that observes twice stands in the list twice.
    void add(LuObserver observer);

    /// Calls `function` for each observer of this moment. What is called may change the list: an observer
    /// that has left it meanwhile is left out, one that has come waits for the next time.
    template <class Function>
    void forEach(Function function) const {
        const int length = getLength();
        if (length == 0)
            return;
        if (length == 1) {
            function((*this)[0]);
        } else if (length <= FEW) {
            std::array<std::uintptr_t, FEW> copy;
            std::copy_n(getMany()->entries(), length, copy.begin());
            callEach(copy.data(), length, function);
        } else {
            const std::vector<std::uintptr_t> copy(getMany()->entries(), getMany()->entries() + length);
            callEach(copy.data(), length, function);
        }
    }

    /// Removes one entry of the observer; none is no fault. Long lists don't keep their order. The thousands
    /// of parents of a shared node come and go at a small cost: one that leaves is soon found when it came
    /// shortly before or after the one that left before it, or is the first or the last.
    void remove(LuObserver observer);

private:
    /// Two and more observers, in one block of memory: their bits follow the header.
    struct Many {
        std::uint32_t length;
        std::uint32_t doublings : 5;  ///< Of the capacity, from FIRST_CAPACITY on.
        std::uint32_t lastPlace : 27; ///< In a long list, where the search for the next to leave begins.
        std::uint32_t getCapacity() const { return FIRST_CAPACITY << doublings; }
        std::uintptr_t* entries() { return reinterpret_cast<std::uintptr_t*>(this + 1); }

        /// The place of an entry, looked for around lastPlace and from both ends at once, or NOT_FOUND.
        std::uint32_t find(std::uintptr_t bits);
    };
    static constexpr std::uint32_t FIRST_CAPACITY = 3;
    static constexpr std::uint32_t NOT_FOUND = 0xFFFFFFFF;
    static constexpr std::uintptr_t MANY = 3;
    static constexpr int FEW = 8;

    bool isMany() const { return (m_bits & MANY) == MANY; }
    Many* getMany() const { return reinterpret_cast<Many*>(m_bits & ~MANY); }
    void setMany(Many* many) { m_bits = reinterpret_cast<std::uintptr_t>(many) | MANY; }
    static std::size_t getManySize(std::uint32_t capacity) {
        return sizeof(Many) + capacity * sizeof(std::uintptr_t);
    }
    static Many* makeMany(std::uint32_t doublings);
    static void freeMany(Many* many);

    template <class Function>
    void callEach(const std::uintptr_t* bits, int length, Function& function) const {
        for (int i = 0; i < length; ++i) {
            if (isAt(i, bits[i]) || contains(LuObserver(bits[i])))
                function(LuObserver(bits[i]));
        }
    }

    /// Mostly nothing has changed meanwhile, and no search is needed.
    bool isAt(int index, std::uintptr_t bits) const {
        return isMany() && index < getLength() && getMany()->entries()[index] == bits;
    }

    std::uintptr_t m_bits = 0;
};
