// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuDragger.h"

LU_KIT_ABSTRACT_SOURCE(LuInteractionKit, LuBaseKit, "InteractionKit")
LU_KIT_ABSTRACT_SOURCE(LuDragger, LuInteractionKit, "Dragger")

LuInteractionKit::LuInteractionKit() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.part("topSeparator", topSeparator, "Separator", "this", false);
    constructor.part("geomSeparator", geomSeparator, "Separator", "topSeparator", false);
}

bool LuInteractionKit::setPartAsDefault(LvName part, LvName nodeName, bool onlyIfDefault) {
    LuNode* const node = LuNode::getByName(nodeName);
    const int number = getNodekitCatalog()->getPartNumber(part);
    if (!node || number <= LuNodekitCatalog::THIS_PART)
        return false;
    if (onlyIfDefault && !getPartField(number)->isDefault())
        return false;
    return setPartByNumber(number, node, true);
}

void LuInteractionKit::setSwitchValue(LuNode* node, int value) {
    if (!node || !node->isOfType(LuSwitch::getClassTypeId()))
        return;
    auto* switchNode = static_cast<LuSwitch*>(node);
    if (switchNode->whichChild.getValue() != value)
        switchNode->whichChild.setValue(value);
}

struct LuDragger::Callbacks {
    struct Entry {
        LuDraggerFunction function;
        void* data;
    };
    std::vector<Entry> start, motion, finish;
};

LuDragger::LuDragger() { LuKitConstructor constructor(s_class, this, &initClass); }

LuDragger::~LuDragger() = default;

LuDragger::Callbacks& LuDragger::getCallbacks() {
    if (!m_callbacks)
        m_callbacks = std::make_unique<Callbacks>();
    return *m_callbacks;
}

void LuDragger::addStartCallback(LuDraggerFunction function, void* data) {
    getCallbacks().start.push_back({function, data});
}

void LuDragger::addMotionCallback(LuDraggerFunction function, void* data) {
    getCallbacks().motion.push_back({function, data});
}

void LuDragger::addFinishCallback(LuDraggerFunction function, void* data) {
    getCallbacks().finish.push_back({function, data});
}

void LuDragger::getBoundingBox(LuGetBoundingBoxAction* action) { LuInteractionKit::getBoundingBox(action); }
