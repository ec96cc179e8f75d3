// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuBaseKit.h"

#include "platform/lumora/actions/LuWriteAction.h"
#include "platform/lumora/io/LuInput.h"

bool LuBaseKit::readField(LuInput* in, LuField* field) {
    const LuNodekitCatalog* catalog = getNodekitCatalog();
    int part = LuNodekitCatalog::THIS_PART + 1;
    while (part < catalog->getNumEntries() && static_cast<LuField*>(getPartField(part)) != field)
        ++part;
    if (part == catalog->getNumEntries())
        return field->readValue(in);

    LuSFNode read;
    if (!read.readValue(in))
        return false;
    LuNode* const node = read.getValue();
    const LuType wanted = catalog->getPart(part).type;
    if (node && !node->isOfType(wanted))
        return in->postError("found a node of type %s, expected one of type %s for the part %s",
                             node->getTypeId().getName().getString(), wanted.getName().getString(),
                             catalog->getName(part).getString());
    return setPart(catalog->getName(part), node) ||
           in->postError("the part %s takes no such node", catalog->getName(part).getString());
}

void LuBaseKit::write(LuWriteAction* action) {
    LuOutput* const out = action->getOutput();
    if (out->getStage() == LuOutput::COUNT_REFS) {
        addWriteReference(out);
        return;
    }
    if (writeHeader(out, false, false))
        return;
    if (const LuFieldData* data = getFieldData())
        data->write(out, this);
    else if (out->isBinary())
        out->write(std::int32_t(0));
    endWrite(action);
}

void LuBaseKit::endWrite(LuWriteAction* action) { writeFooter(action->getOutput()); }
