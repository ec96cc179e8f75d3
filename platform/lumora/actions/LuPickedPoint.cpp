// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuPickedPoint.h"

#include <algorithm>

LuType LuDetail::getClassTypeId() {
    static const LuType s_type = LuType::createType(LuType::badType(), "Detail", nullptr, 0);
    return s_type;
}

const LuDetail* LuPickedPoint::getDetail(const LuNode* node) const {
    const LuNode* const wanted = node ? node : m_path.getTail();
    for (const Entry& entry : m_details) {
        if (entry.node == wanted)
            return entry.detail.get();
    }
    return nullptr;
}

void LuPickedPoint::setDetail(std::unique_ptr<LuDetail> detail, const LuNode* node) {
    std::erase_if(m_details, [node](const Entry& entry) { return entry.node == node; });
    if (detail)
        m_details.push_back({node, std::move(detail)});
}
