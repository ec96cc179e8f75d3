// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvThread.h"
#include "platform/lumora/events/LuEventKinds.h"
#include "platform/lumora/fields/LuFields.h"

#include <type_traits>
#include <typeinfo>

class LuAction;
class LuChildList;
class LuGLRenderAction;
class LuGetBoundingBoxAction;
class LuGetMatrixAction;
class LuHandleEventAction;
class LuRayPickAction;
class LuSearchAction;
class LuWriteAction;

/// A node of the scene graph.
///
/// Actions traverse the graph by calling the operation of their own on each node; a node that does the same
/// in all of them overrides doAction, to which the others lead.
class LuNode : public LuFieldContainer {
public:
    static LuType getClassTypeId();
    static void initClass();
    static LuFieldData** getFieldDataPtr();

    /// The node's children; null for a node that can't have any.
    virtual LuChildList* getChildren() const { return nullptr; }

    /// True when what the node sets reaches the nodes that come after it.
    virtual bool affectsState() const { return true; }

    virtual void doAction(LuAction*) {}
    virtual void GLRender(LuGLRenderAction* action);
    virtual void getBoundingBox(LuGetBoundingBoxAction* action);
    virtual void getMatrix(LuGetMatrixAction* action);
    virtual void search(LuSearchAction* action);
    virtual void write(LuWriteAction* action);
    virtual void rayPick(LuRayPickAction* action);

    /// Separators and kits leave out what is below them when nobody there listens to the event, or when only
    /// draggers do and the pointer is on something else. A class that overrides this is taken to listen to
    /// everything, unless it says more by getOwnEventKinds.
    virtual void handleEvent(LuHandleEventAction* action);

    /// The kinds of events that the node, and what it shows below, listen to.
    LuEventKinds getEventKinds() const;

    /// The same of what is below it alone.
    virtual LuEventKinds getEventKindsBelow() const;

    /// The node, which had grabbed all events, gets them no more.
    virtual void grabEnded() {}

    /// True when both trees have the same types, names, field values and children.
    bool isEqual(const LuNode& other) const;

    /// The first node of a DEF name, or null.
    static LuNode* getByName(LvName name);

    /// The index that the next class to be registered gets.
    static int getNextActionMethodIndex();
    static void incNextActionMethodIndex();

protected:
    LuNode() = default;

    /// Names the class up to whose handleEvent getOwnEventKinds is right. A class that overrides both says
    /// `using EventKindsOf = ` and its own name.
    using EventKindsOf = LuNode;

    /// The kinds of events that the node's own handleEvent does more with than to hand them on. It calls
    /// eventKindsChanged when they change.
    virtual LuEventKinds getOwnEventKinds() const { return {}; }

    /// False for a class whose handleEvent getOwnEventKinds doesn't know of.
    virtual bool tellsEventKinds() const { return false; }

    /// Makes all above forget what they have kept of this node.
    void eventKindsChanged();
};

/// The class in which an operation is declared.
template <class Operation>
struct LuDeclaring {
    using Type = void;
};
template <class Class>
struct LuDeclaring<void (Class::*)(LuHandleEventAction*)> {
    using Type = Class;
};

/// In each class of nodes. One that comes without it, below one that has it, isn't known: it tells nothing.
#define LU_NODE_EVENT_KINDS(Class)                                                                           \
    bool tellsEventKinds() const override {                                                                  \
        using Declaring = LuDeclaring<decltype(&Class::handleEvent)>::Type;                                  \
        return std::is_same_v<Declaring, EventKindsOf> && typeid(*this) == typeid(Class);                    \
    }

/// What a class of nodes has once, whatever its number of instances.
struct LuNodeClass {
    LuType classTypeId;
    LuFieldData** parentFieldData = nullptr;
    LuFieldData* fieldData = nullptr;
    bool firstInstance = true;
};

/// Registers a node's fields from its constructor: the rows of the class's table on the first instance, the
/// container of each field on every one. Notification is off while it lives.
class LuNodeConstructor {
public:
    LuNodeConstructor(LuNodeClass& nodeClass, LuFieldContainer* container)
        : m_class(nodeClass), m_container(container), m_wasNotifyEnabled(container->enableNotify(false)) {
        if (m_class.fieldData)
            m_class.firstInstance = false;
        else
            beginClass();
    }
    ~LuNodeConstructor() { m_container->enableNotify(m_wasNotifyEnabled); }
    LuNodeConstructor(const LuNodeConstructor&) = delete;
    LuNodeConstructor& operator=(const LuNodeConstructor&) = delete;

    /// Adds a field; its default is the value it was constructed with.
    void field(const char* name, LuField& field) {
        field.setContainer(m_container);
        if (m_class.firstInstance)
            m_class.fieldData->addField(m_container, name, &field);
    }

    /// Adds an enum field with the names of its type.
    void enumField(const char* name, LuSFEnum& enumField, const char* typeName,
                   std::initializer_list<std::pair<const char*, int>> values) {
        field(name, enumField);
        if (m_class.firstInstance)
            describeEnum(typeName, values);
    }

private:
    void beginClass();
    void describeEnum(const char* typeName, std::initializer_list<std::pair<const char*, int>> values);

    LuNodeClass& m_class;
    LuFieldContainer* m_container;
    bool m_wasNotifyEnabled;
};

/// Declares what each class of nodes has. The source file says LU_NODE_SOURCE and adds the fields in the
/// constructor by a LuNodeConstructor.
#define LU_NODE_HEADER(Class)                                                                                \
public:                                                                                                      \
    static void initClass();                                                                                 \
    static LuType getClassTypeId() { return s_class.classTypeId; }                                           \
    static LuFieldData** getFieldDataPtr() { return &s_class.fieldData; }                                    \
    static LuTypedObject* createInstance() { return new Class; }                                             \
    LuType getTypeId() const override { return s_class.classTypeId; }                                        \
    const LuFieldData* getFieldData() const override { return s_class.fieldData; }                           \
    LU_NODE_EVENT_KINDS(Class)                                                                               \
                                                                                                             \
private:                                                                                                     \
    static LuNodeClass s_class;                                                                              \
                                                                                                             \
public:

/// Defines it: the class, its direct base and the type name.
#define LU_NODE_SOURCE(Class, Parent, typeName)                                                              \
    LuNodeClass Class::s_class;                                                                              \
    void Class::initClass() {                                                                                \
        luInitNodeClass(s_class, Parent::getClassTypeId(), Parent::getFieldDataPtr(), typeName,              \
                        &Class::createInstance);                                                             \
    }

/// What LU_NODE_SOURCE's initClass does.
void luInitNodeClass(LuNodeClass& nodeClass, LuType parent, LuFieldData** parentFieldData,
                     const char* typeName, LuType::CreateMethod create);
