// SPDX-License-Identifier: MIT
// The least that the bounding box of a scene can cost: a plain loop that transforms the eight corners of each
// box and merges them, with the matrices and boxes side by side in memory.
#include "bench/Measure.h"

#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>

#include <limits>
#include <vector>

namespace {

struct Box {
    glm::vec3 low{std::numeric_limits<float>::max()};
    glm::vec3 high{std::numeric_limits<float>::lowest()};
};

struct Placed {
    glm::mat4 place;
    Box box;
};

std::vector<Placed> makeBoxes(int count) {
    std::vector<Placed> boxes;
    for (int i = 0; i < count; ++i) {
        const glm::vec3 offset(static_cast<float>(i % 100) * 3.0f, static_cast<float>(i / 100) * 2.0f, 0.5f);
        const glm::mat4 moved = glm::translate(glm::mat4(1.0f), offset);
        boxes.push_back(
            {glm::scale(moved, glm::vec3(2.0f, 1.0f, 1.0f)), {glm::vec3(-0.5f), glm::vec3(0.5f)}});
    }
    return boxes;
}

Box merge(const std::vector<Placed>& boxes) {
    Box all;
    for (const auto& [place, box] : boxes) {
        for (int corner = 0; corner < 8; ++corner) {
            const glm::vec4 point(corner & 1 ? box.high.x : box.low.x, corner & 2 ? box.high.y : box.low.y,
                                  corner & 4 ? box.high.z : box.low.z, 1.0f);
            const glm::vec3 moved(place * point);
            all.low = glm::min(all.low, moved);
            all.high = glm::max(all.high, moved);
        }
    }
    return all;
}

} // namespace

int main(int argc, char** argv) {
    for (const int count : bench::counts(argc, argv)) {
        const std::vector<Placed> boxes = makeBoxes(count);
        // One loop over a hundred boxes is too short for the clock.
        const int loops = 100000 / count + 1;
        Box result;
        bench::measure("limit-bbox", count, bench::repeatsFor(count), static_cast<double>(loops) * count,
                       {.prepare = {},
                        .body =
                            [&] {
                                for (int i = 0; i < loops; ++i) {
                                    result = merge(boxes);
                                    // Keeps the compiler from taking the loop's result for granted.
                                    asm volatile("" : : "g"(&result) : "memory");
                                }
                            },
                        .clear = {}});
        bench::require(result.low.x == -1.0f && result.high.z == 1.0f, "the boxes merge to their bounds");
    }
}
