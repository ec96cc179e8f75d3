// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

/// The values of a field, in a row. One alone, which is what most lists hold, stands in the list itself and
/// takes no memory elsewhere.
template <class T>
class LuValueList {
public:
    using value_type = T;
    using iterator = T*;
    using const_iterator = const T*;

    LuValueList() = default;
    explicit LuValueList(const T& value) : m_size(1), m_single(value) {}

    std::size_t size() const { return m_size; }
    const T* data() const { return m_many ? m_many.get() : &m_single; }
    T* data() { return m_many ? m_many.get() : &m_single; }
    const T* begin() const { return data(); }
    const T* end() const { return data() + m_size; }
    const T& operator[](std::size_t index) const { return data()[index]; }
    T& operator[](std::size_t index) { return data()[index]; }

    /// Drops values from the end, or adds default ones.
    void resize(std::size_t size) {
        if (size > m_capacity)
            grow(std::max(size, std::size_t{m_capacity} * 2));
        // What stands behind the end has the default value always.
        for (std::size_t i = size; i < m_size; ++i)
            data()[i] = T{};
        m_size = static_cast<std::uint32_t>(size);
    }

    /// Makes this the only value.
    void assign(T value) {
        *this = LuValueList();
        m_single = std::move(value);
        m_size = 1;
    }
    template <class Values>
    void assignAll(const Values& values) {
        LuValueList list;
        list.resize(values.size());
        std::copy(values.begin(), values.end(), list.data());
        *this = std::move(list);
    }

    /// Opens a gap of `count` default values before the one at `index`, which lies within the list or at its
    /// end.
    void insertSpace(std::size_t index, std::size_t count) {
        const std::size_t length = m_size;
        resize(length + count);
        T* const values = data();
        std::move_backward(values + index, values + length, values + length + count);
        std::fill(values + index, values + std::min(index + count, length), T{});
    }

    /// Removes `count` values from `index` on, all of which lie within the list.
    void erase(std::size_t index, std::size_t count) {
        T* const values = data();
        std::move(values + index + count, values + m_size, values + index);
        resize(m_size - count);
    }

    template <class Values>
    friend bool operator==(const LuValueList& left, const Values& right) {
        return std::equal(left.begin(), left.end(), right.begin(), right.end());
    }

private:
    void grow(std::size_t capacity) {
        auto many = std::make_unique<T[]>(capacity);
        std::move(data(), data() + m_size, many.get());
        m_single = T{};
        m_many = std::move(many);
        m_capacity = static_cast<std::uint32_t>(capacity);
    }

    std::unique_ptr<T[]> m_many; ///< When there has been more than one.
    std::uint32_t m_size = 0;
    std::uint32_t m_capacity = 1;
    T m_single{};
};
