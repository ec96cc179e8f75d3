// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuGroup.h"

#include "platform/lumora/actions/LuWriteAction.h"
#include "platform/lumora/io/LuInput.h"

namespace {

constexpr unsigned short HAS_CHILDREN = 2;

/// What ends a list of children in a binary file of version 1.0.
constexpr std::int32_t END_OF_LIST = -1;

void writeFields(LuOutput* out, const LuFieldContainer* container) {
    if (const LuFieldData* data = container->getFieldData())
        data->write(out, container);
    else if (out->isBinary())
        out->write(std::int32_t(0));
}

} // namespace

void LuNode::write(LuWriteAction* action) {
    LuOutput* const out = action->getOutput();
    if (out->getStage() == LuOutput::COUNT_REFS) {
        addWriteReference(out);
        return;
    }
    if (writeHeader(out, false, false))
        return;
    writeFields(out, this);
    writeFooter(out);
}

bool LuGroup::readInstance(LuInput* in, unsigned short flags) {
    const bool wasNotifying = enableNotify(false);
    if (!getFieldData()->read(in, this, false))
        return false;
    const bool hasChildren = !in->isBinary() || (flags & HAS_CHILDREN);
    if (hasChildren && !readChildren(in))
        return false;
    enableNotify(wasNotifying);
    return true;
}

bool LuGroup::readChildren(LuInput* in) {
    LuBase* child = nullptr;
    if (!in->isBinary()) {
        do {
            if (!LuBase::read(in, child, LuNode::getClassTypeId(), true))
                return false;
            addChild(static_cast<LuNode*>(child));
        } while (child);
        return true;
    }
    int count = 0;
    if (!in->readCount(count, sizeof(std::int32_t)))
        return false;
    for (int i = 0; i < count; ++i) {
        if (!LuBase::read(in, child, LuNode::getClassTypeId(), true))
            return false;
        if (!child)
            return in->postError("found an empty place, expected child %d of %d", i + 1, count);
        addChild(static_cast<LuNode*>(child));
    }
    std::int32_t mark = END_OF_LIST;
    if (in->getVersion() == 1.0F && !in->read(mark))
        return false;
    return mark == END_OF_LIST || in->postError("found %d, expected -1 after the children", mark);
}

void LuGroup::write(LuWriteAction* action) {
    LuOutput* const out = action->getOutput();
    if (out->getStage() == LuOutput::COUNT_REFS) {
        const bool isCounted = out->isCounted(this);
        addWriteReference(out);
        if (!isCounted)
            m_children.traverse(action);
        return;
    }
    if (writeHeader(out, true, false))
        return;
    writeFields(out, this);
    std::int32_t count = 0;
    for (int i = 0; i < getNumChildren(); ++i)
        count += getChild(i)->shouldWrite() ? 1 : 0;
    if (out->isBinary())
        out->write(count);
    for (int i = 0; i < getNumChildren(); ++i) {
        if (getChild(i)->shouldWrite())
            action->traverseChild(getChild(i), i);
    }
    writeFooter(out);
}
