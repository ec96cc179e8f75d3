// SPDX-License-Identifier: MIT
#include "core/LuPanelix.h"

#include "core/LuClassList.h"
#include "core/LuLoadedFiles.h"
#include "platform/lumora/cluster/CrInitModuleCmd.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuTransforms.h"

LU_KIT_SOURCE(LuPanelix, LuDragger, "Panelix")

int LuPanelix::s_initRefCount = 0;
LuPanelix* LuPanelix::m_lastActive = nullptr;

LuPanelix::LuPanelix() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("enable", enable);
    constructor.field("label", label);
    constructor.field("auditorID", auditorID);
    constructor.enumField("labelAlignment", labelAlignment, "LabelAlignment",
                          {{"LEFT", LEFT}, {"CENTER", CENTER}, {"RIGHT", RIGHT}});
    constructor.part("geomSwitch", geomSwitch, "Switch", "geomSeparator", false);
}

LuPanelix::~LuPanelix() {
    if (m_lastActive == this)
        m_lastActive = nullptr;
    setParent(nullptr);
    while (m_firstChild)
        m_firstChild->setParent(nullptr);
    delete m_bboxAction;
    delete m_searchAction;
    delete m_matrixAction;
    delete m_auditors;
    delete m_enableSensor;
    delete m_labelSensor;
    delete m_labelAlignmentSensor;
    if (m_pickStyle)
        m_pickStyle->unref();
    if (m_material)
        m_material->unref();
    if (m_parentTranslationNode)
        m_parentTranslationNode->unref();
}

void LuPanelix::init() {
    LuDB::init();
    LuNodeKit::init();
    LuInteraction::init();
    if (s_initRefCount == 0) {
        luInitComponentClasses();
        CrInitModuleCmd::Instance()->serialize(getProductName());
    }
    ++s_initRefCount;
}

void LuPanelix::finish() {
    if (s_initRefCount == 0)
        return;
    if (--s_initRefCount == 0) {
        LuLoadedFiles::clear();
        luExitComponentClasses();
    }
    LuInteraction::finish();
    LuNodeKit::finish();
    LuDB::finish();
}

bool LuPanelix::isInitialized() { return s_initRefCount > 0; }

const char* LuPanelix::getVersion() { return PANELIX_VERSION; }

void LuPanelix::buildWidget(HWND parent, LvVec2i32&, LvVec2i32&, int is2D) {
    if (is2D) {
        m_built2D = is2D;
        m_parentWidget = parent;
    } else if (!m_built3D) {
        create3DPanelix();
    }
    // All of them are made together; a later build, and there are many, needn't look at them.
    if (m_labelAlignmentSensor)
        return;
    attachSensor(m_enableSensor, enable);
    attachSensor(m_labelSensor, label);
    attachSensor(m_labelAlignmentSensor, labelAlignment);
}

void LuPanelix::fieldChangedCB(void* data, LuSensor* sensor) {
    static_cast<LuPanelix*>(data)->updateFromSensor(sensor);
}

void LuPanelix::attachSensor(LuFieldSensor*& sensor, LuField& field) {
    if (!sensor) {
        sensor = new LuFieldSensor(&fieldChangedCB, this);
        sensor->setPriority(0);
    }
    if (sensor->getAttachedField() != &field)
        sensor->attach(&field);
}

void LuPanelix::updateFromSensor(LuSensor* sensor) {
    const auto isShown3D = [this] { return m_built3D && m_canBeTraversed; };
    if (sensor == m_enableSensor) {
        if (m_built2D)
            changeEnable();
        if (isShown3D())
            change3DEnable();
    } else if (sensor == m_labelSensor) {
        if (m_built2D)
            changeLabel();
        if (isShown3D())
            change3DLabel();
    } else if (sensor == m_labelAlignmentSensor) {
        if (m_built2D)
            changeLabelAlignment();
        if (isShown3D())
            change3DLabelAlignment();
    }
}

void LuPanelix::setParent(LuPanelix* parent) {
    if (parent == m_parent)
        return;
    leaveSiblings();
    m_parent = parent;
    if (!parent)
        return;
    m_nextSibling = parent->m_firstChild;
    if (m_nextSibling)
        m_nextSibling->m_previousSibling = this;
    parent->m_firstChild = this;
}

void LuPanelix::leaveSiblings() {
    if (m_previousSibling)
        m_previousSibling->m_nextSibling = m_nextSibling;
    else if (m_parent)
        m_parent->m_firstChild = m_nextSibling;
    if (m_nextSibling)
        m_nextSibling->m_previousSibling = m_previousSibling;
    m_previousSibling = nullptr;
    m_nextSibling = nullptr;
}

LuPanelix* LuPanelix::getFirstTopParent(int ignoreTraversal, int acceptGroup) {
    LuPanelix* current = this;
    while (LuPanelix* const parent = current->m_parent) {
        if (!parent->m_canBeTraversed && !ignoreTraversal)
            return acceptGroup ? current : nullptr;
        if (parent->isTopLevelDialog())
            return parent;
        current = parent;
    }
    return acceptGroup && current->isDialogGroup() ? current : nullptr;
}

void LuPanelix::set3DCurrentActive(LuPanelix* component) {
    // The one that yields may call auditors, which may end either.
    const LuKeepAlive aliveBefore(m_lastActive);
    const LuKeepAlive alive(component);
    if (m_lastActive && m_lastActive != component)
        m_lastActive->set3DInactive();
    m_lastActive = component;
}

void LuPanelix::set3DInactive() {
    if (m_lastActive == this)
        m_lastActive = nullptr;
}

void LuPanelix::reportAgain(LuPanelix& container) {
    const LuKeepAlive alive(this);
    container.applyAuditor(this);
}

void LuPanelix::addAuditor(LuAuditor* auditor) {
    if (!m_auditors)
        m_auditors = new LvPList;
    if (m_auditors->find(auditor) < 0)
        m_auditors->append(auditor);
}

void LuPanelix::removeAuditor(LuAuditor* auditor) {
    if (m_auditors)
        m_auditors->remove(m_auditors->find(auditor));
}

LuAuditor*& LuPanelix::getAuditor(int index) {
    if (!m_auditors)
        m_auditors = new LvPList;
    // The list holds nothing but what addAuditor put in, so its slots are slots of auditors.
    return reinterpret_cast<LuAuditor*&>((*m_auditors)[index]);
}

int LuPanelix::getAuditorListLength() const { return m_auditors ? m_auditors->getLength() : 0; }

void LuPanelix::destroy() {
    destroyByRef(this);
    LuDragger::destroy();
}
