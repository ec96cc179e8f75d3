// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuDetail.h"
#include "platform/lumora/base/LvName.h"

class LuNode;

/// Which part of a kit was picked. The nodes are those of the point's path, which holds them.
class LuNodeKitDetail : public LuDetail {
public:
    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }

    LuNode* getNodeKit() const { return m_nodeKit; }
    void setNodeKit(LuNode* kit) { m_nodeKit = kit; }

    /// The node of the part; null when the pick was in no part that users know.
    LuNode* getPart() const { return m_part; }
    void setPart(LuNode* part) { m_part = part; }

    LvName getPartName() const { return m_partName; }
    void setPartName(LvName name) { m_partName = name; }

private:
    LuNode* m_nodeKit = nullptr;
    LuNode* m_part = nullptr;
    LvName m_partName;
};
