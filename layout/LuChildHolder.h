// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditorDispatch.h"
#include "auditors/LuDialogAuditor.h"
#include "layout/LuChildSizes.h"
#include "layout/LuScrollBars.h"
#include "layout/LuTopComponent.h"

/// What a group and a top-level dialog have in common: an ordered list of components, their reading and
/// writing, the search in them, and the auditors that hear them.
///
/// `Base` is the class that becomes a container, `Child` what it takes. The children stand in the kit's list
/// of children, below the index m_numChildren, and the kit's own parts behind them. They are held by
/// references. A change of the children of a container that has been built rebuilds the dialog.
template <class Base, class Child>
class LuChildHolder : public Base {
public:
    enum ScrollVisibility {
        NEVER = LuScrollBars::NEVER,
        ALWAYS = LuScrollBars::ALWAYS,
        AUTO = LuScrollBars::AUTO
    };

    /// Null is ignored, here and below.
    virtual void addChild(Child* child);

    /// An index past the end appends.
    virtual void insertChild(Child* child, int index);

    /// Null for an index outside the list.
    virtual Child* getChild(int index) const;
    virtual int getNumChildren() const { return m_numChildren; }

    /// Index of the child, or -1.
    virtual int findChild(const Child* child) const;

    /// The windows of what is removed or replaced end at once. With an index outside the list, or something
    /// that is no child, the list stays as it is; the dialog is rebuilt all the same.
    virtual void removeChild(Child* child) { removeChild(this->findChild(child)); }
    virtual void removeChild(int index);
    virtual void removeAllChildren();
    virtual void replaceChild(Child* child, Child* newChild) {
        replaceChild(this->findChild(child), newChild);
    }
    virtual void replaceChild(int index, Child* newChild);

    /// Reads the children that follow the fields in a file. False on a failure, which has been reported.
    virtual bool readChildren(LuInput* in);

    /// The auditors of the container hear every component below it that no nearer auditor hears.
    void addAuditor(LuDialogAuditor* auditor) { Base::addAuditor(auditor); }
    void removeAuditor(LuDialogAuditor* auditor);

    /// Reports every component below to the auditors, as if each had just changed.
    void applyAuditors();

    /// Depth first, in the order of the children; the container itself is not looked at.
    LuPanelix* searchForAuditorId(LvString id) override;
    void applyAuditor(LuPanelix* component) override;

    LuChildList* getChildren() const override { return const_cast<LuChildList*>(&this->m_children); }
    void search(LuSearchAction* action) override;

    /// The points met speak of components and their public parts, whatever stands below those.
    void rayPick(LuRayPickAction* action) override;
    void write(LuWriteAction* action) override;
    bool readInstance(LuInput* in, unsigned short flags) override;

protected:
    explicit LuChildHolder(LuAuditorContainer kind) : m_kind(kind) {}
    ~LuChildHolder() override = default;

    /// The children have changed after the first build.
    virtual void childrenChanged() = 0;

    /// All of them have gone, after the first build.
    virtual void childrenRemoved() { childrenChanged(); }

    /// Takes an event when the container has no auditors.
    virtual void applyWithoutAuditors(LuPanelix* component) = 0;

    /// Whether the children stay out of what is written.
    virtual bool hidesChildrenFrom(LuOutput*) const { return false; }

    void dispatch(LuDialogAuditor* auditor, LuPanelix* component) {
        luDispatchToAuditor(*auditor, *component, m_kind);
    }

    /// Ends the windows of the children.
    void destroyChildWidgets();

    void internalAddChild(LuNode* child) override;
    int internalFindChild(const LuNode* child) const override;
    void internalInsertChild(LuNode* child, int index) override;
    LuNode* internalGetChild(int index) const override { return this->getChild(index); }
    void internalRemoveChild(LuNode* child) override;
    void internalRemoveChild(int index) override { this->removeChild(index); }
    void internalRemoveAllChildren() override { this->removeAllChildren(); }
    void internalReplaceChild(LuNode* child, LuNode* newChild) override;
    void internalReplaceChild(int index, LuNode* newChild) override;

    int m_numChildren = 0;

    /// While it is set, changes of the children rebuild nothing.
    int m_notBuilt = 1;
    LuChildSizes m_childSizes;
    LuScrollBars m_scrollBars;

private:
    static Child* asChild(LuNode* node);
    bool readChild(LuInput* in, Child*& child);
    bool readBinaryChildren(LuInput* in);
    void writeChildren(LuWriteAction* action);

    LuAuditorContainer m_kind;
};

extern template class LuChildHolder<LuPanelix, LuTopComponent>;
