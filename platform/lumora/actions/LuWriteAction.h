// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/io/LuOutput.h"

/// Writes a graph to a file. Each apply traverses twice: once to count who is used more than once, once to
/// write.
class LuWriteAction : public LuAction {
public:
    /// With an output of its own, or the caller's, which must live as long.
    LuWriteAction() : m_output(&m_ownOutput) {}
    explicit LuWriteAction(LuOutput* output) : m_output(output) {}

    LuOutput* getOutput() { return m_output; }

    void apply(LuNode* node);
    void apply(const LuPath& path);

    /// Goes on in the stage that the output is in; for fields that hold nodes.
    void continueToApply(LuNode* node);

protected:
    void visit(LuNode* node) override;

private:
    template <class Function>
    void writeGraph(LuNode* head, Function count);

    LuOutput m_ownOutput;
    LuOutput* m_output;
};
