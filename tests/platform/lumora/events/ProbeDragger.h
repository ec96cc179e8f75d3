// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/kits/LuDragger.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/platform/lumora/events/EventScene.h"

/// A node that moves nothing and counts its visits. A silent one is known to listen to nothing; of any other
/// that isn't known, so that nothing above it is passed over.
class Witness : public LuTranslation {
public:
    explicit Witness(bool isSilent) : m_isSilent(isSilent) {}
    void handleEvent(LuHandleEventAction*) override { ++count; }
    int count = 0;

protected:
    bool tellsEventKinds() const override { return m_isSilent; }

private:
    bool m_isSilent;
};

/// A dragger with a cube of 20 by 20 units, 2 deep.
class ProbeDragger : public LuDragger {
    LU_KIT_HEADER(ProbeDragger)
    ProbeDragger();
    LuGroup* getGeometry() { return static_cast<LuGroup*>(getPart("geomSeparator", true)); }
};

/// A test with both.
class ProbeScene : public EventScene {
protected:
    ~ProbeScene() override {
        m_root->removeAllChildren();
        ProbeDragger::exitClass();
    }
};
