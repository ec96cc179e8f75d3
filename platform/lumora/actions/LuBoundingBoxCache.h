// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvBox3f.h"

/// The bounding box of what lies below a node, in the node's own space, as long as nothing there changes.
class LuBoundingBoxCache {
public:
    void invalidate() { m_isValid = false; }
    bool isValid() const { return m_isValid; }
    const LvBox3f& getBox() const { return m_box; }
    void set(const LvBox3f& box) {
        m_box = box;
        m_isValid = true;
    }

private:
    LvBox3f m_box;
    bool m_isValid = false;
};
