// SPDX-License-Identifier: MIT
#include "layout/LuChildHolder.h"

#include "layout/LuDialogComponent.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/actions/LuSearchAction.h"

namespace {

/// Ends a path at its last component; a path without one stays.
void endAtComponent(LuPath* path) {
    for (int i = path ? path->getLength() - 1 : -1; i >= 0; --i) {
        if (path->getNode(i)->isOfType(LuPanelix::getClassTypeId())) {
            path->truncate(i + 1);
            return;
        }
    }
}

} // namespace

template <class Base, class Child>
Child* LuChildHolder<Base, Child>::asChild(LuNode* node) {
    const bool isChild = node && node->isOfType(Child::getClassTypeId());
    return isChild ? static_cast<Child*>(node) : nullptr;
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::addChild(Child* child) {
    this->insertChild(child, m_numChildren);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::insertChild(Child* child, int index) {
    if (!child)
        return;
    this->m_children.insert(child, std::min(index, m_numChildren));
    ++m_numChildren;
    child->setParent(this);
    if (!m_notBuilt)
        childrenChanged();
}

template <class Base, class Child>
Child* LuChildHolder<Base, Child>::getChild(int index) const {
    return index >= 0 && index < m_numChildren ? static_cast<Child*>(this->m_children[index]) : nullptr;
}

template <class Base, class Child>
int LuChildHolder<Base, Child>::findChild(const Child* child) const {
    for (int i = 0; i < m_numChildren; ++i) {
        if (this->m_children[i] == child)
            return i;
    }
    return -1;
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::removeChild(int index) {
    if (index >= 0 && index < m_numChildren) {
        getChild(index)->destroyWidget();
        --m_numChildren;
        this->m_children.remove(index);
    }
    if (!m_notBuilt)
        childrenChanged();
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::removeAllChildren() {
    destroyChildWidgets();
    // The kit's own parts, which follow, stay.
    while (m_numChildren > 0)
        this->m_children.remove(--m_numChildren);
    if (!m_notBuilt)
        childrenRemoved();
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::destroyChildWidgets() {
    for (int i = m_numChildren - 1; i >= 0; --i)
        LuChildHolder::getChild(i)->destroyWidget();
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::replaceChild(int index, Child* newChild) {
    if (index >= 0 && index < m_numChildren && newChild) {
        getChild(index)->destroyWidget();
        this->m_children.set(index, newChild);
        newChild->setParent(this);
    }
    if (!m_notBuilt)
        childrenChanged();
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::internalAddChild(LuNode* node) {
    if (Child* child = asChild(node))
        this->addChild(child);
    else
        LuBaseKit::internalAddChild(node);
}

template <class Base, class Child>
int LuChildHolder<Base, Child>::internalFindChild(const LuNode* node) const {
    if (const Child* child = asChild(const_cast<LuNode*>(node)))
        return this->findChild(child);
    return LuBaseKit::internalFindChild(node);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::internalInsertChild(LuNode* node, int index) {
    if (Child* child = asChild(node))
        this->insertChild(child, index);
    else
        LuBaseKit::internalInsertChild(node, index);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::internalRemoveChild(LuNode* node) {
    if (Child* child = asChild(node))
        this->removeChild(child);
    else
        LuBaseKit::internalRemoveChild(node);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::internalReplaceChild(LuNode* node, LuNode* newNode) {
    Child* const newChild = asChild(newNode);
    if (Child* child = newChild ? asChild(node) : nullptr)
        this->replaceChild(child, newChild);
    else
        LuBaseKit::internalReplaceChild(node, newNode);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::internalReplaceChild(int index, LuNode* newNode) {
    if (Child* newChild = asChild(newNode))
        this->replaceChild(index, newChild);
    else
        LuBaseKit::internalReplaceChild(index, newNode);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::removeAuditor(LuDialogAuditor* auditor) {
    Base::removeAuditor(auditor);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::applyAuditors() {
    const LuKeepAlive alive(this);
    for (int i = 0; i < this->getNumChildren(); ++i)
        this->getChild(i)->reportAgain(*this);
}

template <class Base, class Child>
LuPanelix* LuChildHolder<Base, Child>::searchForAuditorId(LvString id) {
    for (int i = 0; i < this->getNumChildren(); ++i) {
        Child* const child = this->getChild(i);
        LuPanelix* const found = child->auditorID.getValue() == id ? child : child->searchForAuditorId(id);
        if (found)
            return found;
    }
    return nullptr;
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::applyAuditor(LuPanelix* component) {
    const auto call = [&](LuDialogAuditor& auditor) { dispatch(&auditor, component); };
    if (!this->template callAuditors<LuDialogAuditor>(call))
        applyWithoutAuditors(component);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::search(LuSearchAction* action) {
    // A search for the last node gives the whole way to it; the others end at a component.
    if (action->goesBackwards() || !LuBaseKit::searchingChildren) {
        Base::search(action);
        return;
    }
    action->consider(this);
    if (action->hasTerminated())
        return;
    const int last = this->m_children.getLength() - 1;
    this->m_children.traverse(action, 0, last - 1);
    if (action->getInterest() == LuSearchAction::ALL) {
        for (int i = 0; i < action->getPaths().getLength(); ++i)
            endAtComponent(&action->getPaths()[i]);
    }
    if (action->hasTerminated())
        endAtComponent(action->getPath());
    else if (last >= 0)
        this->m_children.traverse(action, last, last);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::rayPick(LuRayPickAction* action) {
    const int hitCount = action->getHitCount();
    this->pickContent(action);
    if (action->getHitCount() != hitCount)
        this->addPickDetails(action);
}

template class LuChildHolder<LuPanelix, LuTopComponent>;
template class LuChildHolder<LuDialogComponent, LuDialogComponent>;
