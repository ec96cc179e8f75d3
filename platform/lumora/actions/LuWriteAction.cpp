// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuWriteAction.h"

#include "platform/lumora/nodes/LuNode.h"

void LuWriteAction::apply(LuNode* node) {
    if (node)
        writeGraph(node, [this, node] { LuAction::apply(node); });
}

void LuWriteAction::apply(const LuPath& path) {
    if (path.getLength() > 0)
        writeGraph(path.getHead(), [this, &path] { LuAction::apply(path); });
}

template <class Function>
void LuWriteAction::writeGraph(LuNode* head, Function count) {
    head->ref();
    LuOutput* const before = LuOutput::getCurrent();
    LuOutput::setCurrent(m_output);
    m_output->beginGraph();
    m_output->setStage(LuOutput::COUNT_REFS);
    count();
    m_output->setStage(LuOutput::WRITE);
    m_output->writeFileHeader();
    // What the path leaves out has not been counted, and so is not written.
    LuAction::apply(head);
    LuOutput::setCurrent(before);
    head->unrefNoDestroy();
}

void LuWriteAction::continueToApply(LuNode* node) { LuAction::apply(node); }

void LuWriteAction::visit(LuNode* node) { node->write(this); }
