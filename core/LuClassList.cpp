// SPDX-License-Identifier: MIT
#include "core/LuClassList.h"

#include "auditors/LuAuditor.h"
#include "core/LuPanelix.h"

#include <algorithm>
#include <iterator>

namespace {

struct ComponentClass {
    void (*init)();
    void (*exit)();
};

template <class Class>
constexpr ComponentClass row() {
    return {&Class::initClass, &Class::exitClass};
}

constexpr ComponentClass CLASSES[] = {
    row<LuPanelix>(),
};


} // namespace

void luInitComponentClasses() {
    for (const ComponentClass& componentClass : CLASSES)
        componentClass.init();
    LuAuditor::initClasses();
}

void luExitComponentClasses() {
    LuAuditor::exitClasses();
    std::for_each(std::rbegin(CLASSES), std::rend(CLASSES), [](const ComponentClass& c) { c.exit(); });
}

void luChangeSkinOfComponentClasses() {}
