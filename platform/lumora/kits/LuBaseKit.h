// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/kits/LuNodekitCatalog.h"
#include "platform/lumora/nodes/LuGroup.h"

class LuPath;
class LuPickedPoint;

/// A node made of named parts. Each part is a LuSFNode field of the kit; the catalogue of the class tells
/// which part hangs below which. A part comes into being when it, or a part below it, is first set.
///
/// The kit's list of children holds the parts whose parent is the kit itself; a class derived from it may
/// keep children of its own there too, in front of them.
class LuBaseKit : public LuNode {
public:
    static void initClass();
    static LuType getClassTypeId();
    static LuFieldData** getFieldDataPtr();
    static LuNodekitCatalog** getClassNodekitCatalogPtr();

    /// Whether a search goes into kits at all. Off at the start, as in applications that treat kits as
    /// leaves; the application switches it.
    static bool searchingChildren;

    /// Null for an instance that outlives its class.
    virtual const LuNodekitCatalog* getNodekitCatalog() const = 0;

    /// Whether the object's class is one of the program's own, which is true of all that there are.
    virtual bool getIsBuiltIn() const = 0;

    /// The node in a part. With `makeIfNeeded` a part without one gets a node of its default type. Null for
    /// an unknown part.
    LuNode* getPart(LvName part, bool makeIfNeeded);

    /// Puts a node in a part, null to empty it; the parts above come into being. False, with a message, for
    /// an unknown part or a node of a wrong type.
    bool setPart(LvName part, LuNode* node);

    /// The name of the part that holds the node; empty when none does.
    LvName getPartString(const LuNode* node) const;

    LuChildList* getChildren() const override { return const_cast<LuChildList*>(&m_children); }
    bool affectsState() const override { return false; }
    void doAction(LuAction* action) override;
    void GLRender(LuGLRenderAction* action) override;
    void getBoundingBox(LuGetBoundingBoxAction* action) override;
    void getMatrix(LuGetMatrixAction* action) override;
    void search(LuSearchAction* action) override;

    /// Adds a LuNodeKitDetail to each new point below the kit.
    void rayPick(LuRayPickAction* action) override;
    void handleEvent(LuHandleEventAction* action) override;
    LuEventKinds getEventKindsBelow() const override;
    void write(LuWriteAction* action) override;

    /// A node that a file gives for a part goes in by setPart.
    bool readField(LuInput* in, LuField* field) override;

protected:
    LuBaseKit() : m_children(this) {}

    using EventKindsOf = LuBaseKit;

    friend class LuKitConstructor;

    /// Makes the parts that are not null by default; called at the end of each class's constructor.
    void createDefaultParts();

    /// Reports an entry that the catalogue did not take.
    void catalogError(LvName part) const;

    LuSFNode* getPartField(int part) const;

    /// The number of a part in the catalogue, or -1. `field` is one of this kit.
    int getPartNumber(LvName part) const;
    int getPartNumber(const LuSFNode& field) const;

    /// Makes a part hold a node, with the parts above it. `isDefault` is the default flag of the field
    /// afterwards.
    bool setPartByNumber(int part, LuNode* node, bool isDefault);
    LuNode* makePart(int part);

    /// The node in a part, which comes into being when there is none. A class names its own parts, and those
    /// of its bases, by their fields: that costs less than by name.
    LuNode* makePart(const LuSFNode& part) {
        return part.getValue() ? part.getValue() : makePart(getPartNumber(part));
    }

    /// Ends the writing of an object that writeHeader began.
    void endWrite(LuWriteAction* action);

    /// The operations by which generic code changes the list of children. A class whose children are typed
    /// overrides them.
    virtual void internalAddChild(LuNode* child);
    virtual int internalFindChild(const LuNode* child) const;
    virtual void internalInsertChild(LuNode* child, int index);
    virtual LuNode* internalGetChild(int index) const;
    virtual void internalRemoveChild(LuNode* child);
    virtual void internalRemoveChild(int index);
    virtual void internalRemoveAllChildren();
    virtual void internalReplaceChild(LuNode* child, LuNode* newChild);
    virtual void internalReplaceChild(int index, LuNode* newChild);

    void invalidateCaches() override {
        m_boxCache.invalidate();
        m_renderCache.invalidate();
        m_eventKinds.invalidate();
    }

    /// Picks below the kit, unless the ray misses it.
    void pickContent(LuRayPickAction* action);

    /// Adds what the kit knows of a point that lies in it, by the visible part of the point's path.
    void addPickDetail(LuPickedPoint& point);

    /// The deepest public part on a way through the kit, and its name; null when there is none.
    LuNode* findPublicPart(const LuPath& path, LvName& name) const;

    /// The children of the class's own in front, then the parts of the kit.
    LuChildList m_children;

private:
    LuSFNode& getFieldOf(const LuNodekitPart& part) const;
    LuChildList* getParentList(const LuNodekitPart& part);
    int getInsertIndex(const LuNodekitPart& part, const LuChildList& siblings) const;

    LuBoundingBoxCache m_boxCache;
    LuRenderCache m_renderCache;
    mutable LuEventKindsCache m_eventKinds;
};

/// What a class of kits has once, whatever its number of instances.
struct LuKitClass : LuNodeClass {
    LuNodekitCatalog* nodekitCatalog = nullptr;
    LuNodekitCatalog** parentNodekitCatalogPtr = nullptr;
    bool isBuiltIn = false;
    LvThreadMutex classMutex;
};

/// Registers a kit's fields and parts from its constructor; see LuNodeConstructor.
class LuKitConstructor {
public:
    LuKitConstructor(LuKitClass& kitClass, LuBaseKit* kit, void (*initClass)());
    ~LuKitConstructor();
    LuKitConstructor(const LuKitConstructor&) = delete;
    LuKitConstructor& operator=(const LuKitConstructor&) = delete;

    void field(const char* name, LuField& field);
    void enumField(const char* name, LuSFEnum& field, const char* typeName,
                   std::initializer_list<std::pair<const char*, int>> values);

    /// Adds a part, null by default, no list, without a right sibling; the type, which is the default type
    /// too, by its registered name. False when the catalogue did not take it.
    bool part(const char* name, LuSFNode& field, const char* type, const char* parent, bool isPublic);

private:
    LuKitClass& m_class;
    LuBaseKit* m_kit;
    LuNodeConstructor m_fields;
};

/// What each class of kits says in its definition, and LU_KIT_SOURCE in its source file.
#define LU_KIT_HEADER(Class)                                                                                 \
public:                                                                                                      \
    static void initClass();                                                                                 \
    static void exitClass();                                                                                 \
    static LuTypedObject* createInstance() { return new Class; }                                             \
    LU_KIT_OPERATIONS(Class)

/// The same for an abstract class, of which there are no instances.
#define LU_KIT_ABSTRACT_HEADER(Class)                                                                        \
public:                                                                                                      \
    static void initClass();                                                                                 \
    static void exitClass();                                                                                 \
    LU_KIT_OPERATIONS(Class)

#define LU_KIT_OPERATIONS(Class)                                                                             \
    static LuType getClassTypeId() { return s_class.classTypeId; }                                           \
    LuType getTypeId() const override { return s_class.classTypeId; }                                        \
    const LuFieldData* getFieldData() const override { return luGetFieldData(s_class); }                     \
    LU_NODE_EVENT_KINDS(Class)                                                                               \
    static LuFieldData** getFieldDataPtr() { return &s_class.fieldData; }                                    \
    static const LuNodekitCatalog* getClassNodekitCatalog() { return s_class.nodekitCatalog; }               \
    static LuNodekitCatalog** getClassNodekitCatalogPtr() { return &s_class.nodekitCatalog; }                \
    const LuNodekitCatalog* getNodekitCatalog() const override { return s_class.nodekitCatalog; }            \
    bool getIsBuiltIn() const override { return s_class.isBuiltIn; }                                         \
                                                                                                             \
private:                                                                                                     \
    static LuKitClass s_class;                                                                               \
                                                                                                             \
public:

#define LU_KIT_SOURCE(Class, Parent, typeName)                                                               \
    LU_KIT_SOURCE_WITH(Class, Parent, typeName, &Class::createInstance)
#define LU_KIT_ABSTRACT_SOURCE(Class, Parent, typeName) LU_KIT_SOURCE_WITH(Class, Parent, typeName, nullptr)

#define LU_KIT_SOURCE_WITH(Class, Parent, typeName, create)                                                  \
    LuKitClass Class::s_class;                                                                               \
    void Class::initClass() {                                                                                \
        if (Parent::getClassTypeId().isBad())                                                                \
            Parent::initClass();                                                                             \
        luInitKitClass(s_class, Parent::getClassTypeId(), Parent::getFieldDataPtr(),                         \
                       Parent::getClassNodekitCatalogPtr(), typeName, create);                               \
    }                                                                                                        \
    void Class::exitClass() { luExitKitClass(s_class); }

/// What the macros' operations do.
void luInitKitClass(LuKitClass& kitClass, LuType parent, LuFieldData** parentFieldData,
                    LuNodekitCatalog** parentCatalog, const char* typeName, LuType::CreateMethod create);
void luExitKitClass(LuKitClass& kitClass);
LuFieldData* luGetFieldData(LuKitClass& kitClass);
