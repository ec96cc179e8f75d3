// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/kits/LuBaseKit.h"

#include <memory>

/// A kit whose parts may be filled from named nodes, the skins.
class LuInteractionKit : public LuBaseKit {
    LU_KIT_ABSTRACT_HEADER(LuInteractionKit)

    /// Makes a part hold the node of a DEF name, with the default flag of the part set. With `onlyIfDefault`
    /// a part that the user has filled stays. False when there is no such node, or the part stays as it is.
    bool setPartAsDefault(LvName part, LvName nodeName, bool onlyIfDefault = true);

    /// Sets what a LuSwitch shows, when it is one and shows something else.
    static void setSwitchValue(LuNode* node, int value);

protected:
    LuInteractionKit();

    LuSFNode topSeparator;  ///< Holds all that the kit shows.
    LuSFNode geomSeparator; ///< Where a dragger's geometry hangs.
};

class LuDragger;
using LuDraggerFunction = void (*)(void* data, LuDragger* dragger);

/// A kit that is pressed, dragged and released. Those who listen are called in the order in which they came.
class LuDragger : public LuInteractionKit {
    LU_KIT_ABSTRACT_HEADER(LuDragger)

    ~LuDragger() override;

    void addStartCallback(LuDraggerFunction function, void* data);
    void addMotionCallback(LuDraggerFunction function, void* data);
    void addFinishCallback(LuDraggerFunction function, void* data);

    void getBoundingBox(LuGetBoundingBoxAction* action) override;

protected:
    LuDragger();

private:
    struct Callbacks;
    Callbacks& getCallbacks();
    std::unique_ptr<Callbacks> m_callbacks; ///< Made with the first of them.
};
