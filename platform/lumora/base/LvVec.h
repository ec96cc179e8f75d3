// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

/// A pair of whole numbers: sizes and positions in pixels, y down in windows. Results that no int can hold
/// stop at its limits: 2147483647 stands for "no limit" in sizes and stays so in sums.
class LvVec2i32 {
public:
    int x = 0, y = 0;

    LvVec2i32() = default;
    LvVec2i32(int newX, int newY) : x(newX), y(newY) {}

    void setValue(int newX, int newY) {
        x = newX;
        y = newY;
    }
    int& operator[](int axis) { return axis == 0 ? x : y; }
    int operator[](int axis) const { return axis == 0 ? x : y; }

    LvVec2i32& operator+=(const LvVec2i32& other) {
        x = limit(std::int64_t{x} + other.x);
        y = limit(std::int64_t{y} + other.y);
        return *this;
    }
    /// Scales both numbers; the products are truncated to whole numbers.
    LvVec2i32& operator*=(double factor) {
        x = limit(x * factor);
        y = limit(y * factor);
        return *this;
    }
    friend LvVec2i32 operator+(LvVec2i32 left, const LvVec2i32& right) { return left += right; }
    friend LvVec2i32 operator-(const LvVec2i32& left, const LvVec2i32& right) {
        return {limit(std::int64_t{left.x} - right.x), limit(std::int64_t{left.y} - right.y)};
    }
    friend bool operator==(const LvVec2i32&, const LvVec2i32&) = default;

private:
    template <class Number>
    static int limit(Number number) {
        constexpr auto LOWEST = static_cast<Number>(std::numeric_limits<int>::min());
        constexpr auto HIGHEST = static_cast<Number>(std::numeric_limits<int>::max());
        // A number that differs from itself is none, and has no nearest int.
        return number != number ? 0 : static_cast<int>(std::clamp(number, LOWEST, HIGHEST));
    }
};

class LvVec2f {
public:
    float x = 0, y = 0;

    LvVec2f() = default;
    LvVec2f(float newX, float newY) : x(newX), y(newY) {}

    void setValue(float newX, float newY) {
        x = newX;
        y = newY;
    }
    float& operator[](int axis) { return axis == 0 ? x : y; }
    float operator[](int axis) const { return axis == 0 ? x : y; }
    friend LvVec2f operator+(const LvVec2f& a, const LvVec2f& b) { return {a.x + b.x, a.y + b.y}; }
    friend LvVec2f operator-(const LvVec2f& a, const LvVec2f& b) { return {a.x - b.x, a.y - b.y}; }
    friend bool operator==(const LvVec2f&, const LvVec2f&) = default;
};

/// A point or direction in the scene, y up.
class LvVec3f {
public:
    float x = 0, y = 0, z = 0;

    LvVec3f() = default;
    LvVec3f(float newX, float newY, float newZ) : x(newX), y(newY), z(newZ) {}

    void setValue(float newX, float newY, float newZ) {
        x = newX;
        y = newY;
        z = newZ;
    }
    float& operator[](int axis) { return axis == 0 ? x : axis == 1 ? y : z; }
    float operator[](int axis) const { return axis == 0 ? x : axis == 1 ? y : z; }

    float dot(const LvVec3f& other) const { return x * other.x + y * other.y + z * other.z; }
    LvVec3f cross(const LvVec3f& other) const {
        return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
    }
    float length() const { return std::sqrt(dot(*this)); }

    LvVec3f& operator+=(const LvVec3f& other) {
        x += other.x;
        y += other.y;
        z += other.z;
        return *this;
    }
    LvVec3f& operator-=(const LvVec3f& other) {
        x -= other.x;
        y -= other.y;
        z -= other.z;
        return *this;
    }
    LvVec3f& operator*=(float factor) {
        x *= factor;
        y *= factor;
        z *= factor;
        return *this;
    }
    friend LvVec3f operator+(LvVec3f left, const LvVec3f& right) { return left += right; }
    friend LvVec3f operator-(LvVec3f left, const LvVec3f& right) { return left -= right; }
    friend LvVec3f operator*(LvVec3f left, float factor) { return left *= factor; }
    friend LvVec3f operator-(const LvVec3f& value) { return {-value.x, -value.y, -value.z}; }
    friend bool operator==(const LvVec3f&, const LvVec3f&) = default;
};

/// Red, green and blue, each from 0 to 1.
class LvColor : public LvVec3f {
public:
    LvColor() = default;
    LvColor(float red, float green, float blue) : LvVec3f(red, green, blue) {}
};

/// A rotation as a unit quaternion (x, y, z, w); (0, 0, 0, 1) turns nothing.
class LvRotation {
public:
    float x = 0, y = 0, z = 0, w = 1;

    LvRotation() = default;
    LvRotation(float newX, float newY, float newZ, float newW) : x(newX), y(newY), z(newZ), w(newW) {}

    /// Turns by `angle` radians about `axis`; an axis without a length turns nothing.
    LvRotation(const LvVec3f& axis, float angle);

    void setValue(float newX, float newY, float newZ, float newW) {
        x = newX;
        y = newY;
        z = newZ;
        w = newW;
    }
    /// The axis, of length 1, and the angle in radians, from 0 to pi.
    void getAxisAngle(LvVec3f& axis, float& angle) const;

    friend bool operator==(const LvRotation&, const LvRotation&) = default;
};
