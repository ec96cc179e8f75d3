// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace bench {

/// The time that a measurement reads, in nanoseconds from an arbitrary start. On Linux it is the CPU time of
/// this process. Under Wine it is the time of the wall: half of the work is done by another process, the
/// wineserver, and both are pinned to one processor, so that the wall shows the sum.
std::int64_t now();

/// The numbers of controls to measure with: the program's arguments, else 'usual'. An argument that is not a
/// positive number ends the program with a message.
std::vector<int> counts(int argc, char** argv, std::vector<int> usual = {100, 1000, 10000});

/// Repeats for one measurement: fewer for larger dialogs, always odd, so that the median is a measured value.
int repeatsFor(int count);

/// Ends the program with a message unless the condition holds. A benchmark that did not do its work has no
/// number.
void require(bool condition, const char* what);

/// A measurement: what happens once in each repeat. Only 'body' is timed; the other two may be empty.
struct Sample {
    std::function<void()> prepare;
    std::function<void()> body;
    std::function<void()> clear;
};

/// Repeats the sample and prints "name count repeats median", the median in nanoseconds divided by 'divisor',
/// which is the number of controls where the cost of one control is asked for, and the number of calls in
/// 'body' where the cost of one call is.
void measure(const char* name, int count, int repeats, double divisor, const Sample& sample);

/// Prints a line of the same form for something that is not a time, such as bytes.
void report(const char* name, int count, int repeats, double value);

} // namespace bench
