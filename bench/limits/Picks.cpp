// SPDX-License-Identifier: MIT
// What finding the nearest of many boxes on a ray costs without any order among them: a plain loop that holds
// the ray against each box of the scene, with the boxes side by side in memory.
#include "bench/Measure.h"

#include <glm/glm.hpp>

#include <limits>
#include <vector>

namespace {

struct Box {
    glm::vec3 low;
    glm::vec3 high;
};

std::vector<Box> makeBoxes(int count) {
    std::vector<Box> boxes;
    for (int i = 0; i < count; ++i) {
        const glm::vec3 middle(static_cast<float>(i % 100) * 3.0f, static_cast<float>(i / 100) * 2.0f, 0.5f);
        boxes.push_back({middle - glm::vec3(1.0f, 0.5f, 0.5f), middle + glm::vec3(1.0f, 0.5f, 0.5f)});
    }
    return boxes;
}

/// Index of the nearest box, or -1.
int findNearest(const std::vector<Box>& boxes, const glm::vec3& origin, const glm::vec3& direction) {
    const glm::vec3 inverse = 1.0f / direction;
    float nearest = std::numeric_limits<float>::max();
    int found = -1;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const glm::vec3 toLow = (boxes[i].low - origin) * inverse;
        const glm::vec3 toHigh = (boxes[i].high - origin) * inverse;
        const glm::vec3 enter = glm::min(toLow, toHigh);
        const glm::vec3 leave = glm::max(toLow, toHigh);
        const float from = glm::max(glm::max(enter.x, enter.y), enter.z);
        const float to = glm::min(glm::min(leave.x, leave.y), leave.z);
        if (from <= to && to >= 0 && from < nearest) {
            nearest = from;
            found = static_cast<int>(i);
        }
    }
    return found;
}

} // namespace

int main(int argc, char** argv) {
    for (const int count : bench::counts(argc, argv)) {
        const std::vector<Box> boxes = makeBoxes(count);
        constexpr int calls = 1000;
        int hits = 0;
        bench::measure("limit-pick", count, bench::repeatsFor(count), calls,
                       {.prepare = [&] { hits = 0; },
                        .body =
                            [&] {
                                const glm::vec3 eye(50.0f, 50.0f, 500.0f);
                                for (int i = 0; i < calls; ++i) {
                                    const Box& target = boxes[static_cast<std::size_t>(i * 7 % count)];
                                    const glm::vec3 way = (target.low + target.high) * 0.5f - eye;
                                    hits += findNearest(boxes, eye, glm::normalize(way)) >= 0 ? 1 : 0;
                                }
                            },
                        .clear = {}});
        bench::require(hits == calls, "each ray meets its box");
    }
}
