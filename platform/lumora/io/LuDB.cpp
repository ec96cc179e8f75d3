// SPDX-License-Identifier: MIT
#include "platform/lumora/io/LuDB.h"

#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/kits/LuDragger.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuEventCallback.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuLights.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

template <class Part>
int LuStartCount<Part>::s_initCount = 0;
template class LuStartCount<LuDB>;
template class LuStartCount<LuNodeKit>;
template class LuStartCount<LuInteraction>;

bool LuDBImpl::s_isRunningCluster = false;
bool LuDBImpl::s_isRunningART = false;

namespace {

/// All classes of the toolkit, each behind the one that it is derived from.
void registerClasses() {
    LuNode::initClass();
    LuGroup::initClass();
    LuSeparator::initClass();
    LuSwitch::initClass();
    LuTranslation::initClass();
    LuScale::initClass();
    LuRotation::initClass();
    LuTransform::initClass();
    LuMatrixTransform::initClass();
    LuMaterial::initClass();
    LuBaseColor::initClass();
    LuPickStyle::initClass();
    LuFont::initClass();
    LuCoordinate3::initClass();
    LuClipPlane::initClass();
    LuEventCallback::initClass();
    LuCamera::initClass();
    LuPerspectiveCamera::initClass();
    LuOrthographicCamera::initClass();
    LuDirectionalLight::initClass();
    LuPointLight::initClass();
    LuShape::initClass();
    LuCube::initClass();
    LuSphere::initClass();
    LuCone::initClass();
    LuFaceSet::initClass();
    LuIndexedFaceSet::initClass();
    LuText3::initClass();
    LuBaseKit::initClass();
    LuInteractionKit::initClass();
    LuDragger::initClass();
}

} // namespace

void LuDB::init() {
    if (getInitCount() == 0)
        registerClasses();
    LuStartCount::init();
}

LuSeparator* LuDB::readAll(LuInput* in) {
    auto* const root = new LuSeparator;
    root->ref();
    LuBase* child = nullptr;
    bool isRead = true;
    do {
        isRead = LuBase::read(in, child, LuNode::getClassTypeId(), true);
        root->addChild(static_cast<LuNode*>(child));
    } while (isRead && child);
    if (isRead && !in->isAtEnd()) {
        const std::string found = in->describeNext();
        isRead = in->postError("found %s, expected a node", found.c_str());
    }
    if (!isRead) {
        root->unref();
        return nullptr;
    }
    root->unrefNoDestroy();
    return root;
}
