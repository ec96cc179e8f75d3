// SPDX-License-Identifier: MIT
#include "layout/LuChildHolder.h"
#include "layout/LuDialogComponent.h"
#include "platform/lumora/actions/LuWriteAction.h"
#include "platform/lumora/io/LuInput.h"

namespace {

constexpr unsigned short HAS_CHILDREN = 2;

/// What ends a list of children in a binary file of version 1.0.
constexpr std::int32_t END_OF_LIST = -1;

} // namespace

template <class Base, class Child>
bool LuChildHolder<Base, Child>::readInstance(LuInput* in, unsigned short flags) {
    const bool wasNotifying = this->enableNotify(false);
    if (!this->getFieldData()->read(in, this, false))
        return false;
    const bool hasChildren = !in->isBinary() || (flags & HAS_CHILDREN);
    const bool isRead = !hasChildren || this->readChildren(in);
    this->enableNotify(wasNotifying);
    return isRead;
}

template <class Base, class Child>
bool LuChildHolder<Base, Child>::readChild(LuInput* in, Child*& child) {
    LuBase* base = nullptr;
    const bool isRead = LuBase::read(in, base, Child::getClassTypeId(), true);
    child = static_cast<Child*>(base);
    this->addChild(child);
    return isRead;
}

template <class Base, class Child>
bool LuChildHolder<Base, Child>::readChildren(LuInput* in) {
    if (in->isBinary())
        return readBinaryChildren(in);
    Child* child = nullptr;
    bool isRead = true;
    do {
        isRead = readChild(in, child);
    } while (isRead && child);
    return isRead;
}

template <class Base, class Child>
bool LuChildHolder<Base, Child>::readBinaryChildren(LuInput* in) {
    int count = 0;
    if (!in->readCount(count, sizeof(std::int32_t)))
        return false;
    for (int i = 0; i < count; ++i) {
        Child* child = nullptr;
        if (!readChild(in, child))
            return false;
        if (!child)
            return in->postError("found an empty place, expected child %d of %d", i + 1, count);
    }
    std::int32_t mark = END_OF_LIST;
    if (in->getVersion() == 1.0F && !in->read(mark))
        return false;
    return mark == END_OF_LIST || in->postError("found %d, expected -1 after the children", mark);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::write(LuWriteAction* action) {
    LuOutput* const out = action->getOutput();
    if (out->getStage() == LuOutput::COUNT_REFS) {
        const bool isCounted = out->isCounted(this);
        this->addWriteReference(out, false);
        if (!isCounted)
            this->m_children.traverse(action, 0, m_numChildren - 1);
        return;
    }
    if (this->writeHeader(out, true, false))
        return;
    this->getFieldData()->write(out, this);
    if (!hidesChildrenFrom(out))
        writeChildren(action);
    else if (out->isBinary())
        out->write(std::int32_t{0});
    this->endWrite(action);
}

template <class Base, class Child>
void LuChildHolder<Base, Child>::writeChildren(LuWriteAction* action) {
    int last = m_numChildren - 1;
    int numIndices = 0;
    const int* indices = nullptr;
    if (action->usePathCode(numIndices, indices) == LuAction::PathCode::IN_PATH)
        last = std::min(last, indices[numIndices - 1]);
    std::int32_t count = 0;
    for (int i = 0; i <= last; ++i)
        count += this->m_children[i]->shouldWrite() ? 1 : 0;
    LuOutput* const out = action->getOutput();
    if (out->isBinary())
        out->write(count);
    for (int i = 0; i <= last; ++i) {
        if (this->m_children[i]->shouldWrite())
            this->m_children.traverse(action, i, i);
    }
}

template class LuChildHolder<LuPanelix, LuTopComponent>;
template class LuChildHolder<LuDialogComponent, LuDialogComponent>;
