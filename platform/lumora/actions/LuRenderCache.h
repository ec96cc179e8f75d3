// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuChangeStamp.h"

/// What a separator or kit knows of its drawing. The draws themselves are kept by those who draw, for each
/// place of the node; they compare the stamp.
class LuRenderCache : public LuChangeStamp {
public:
    /// False as long as nobody has kept draws of the node: then nobody needs to look for them.
    bool isKept() const { return m_isKept; }
    void setKept() const { m_isKept = true; }

private:
    mutable bool m_isKept = false;
};
