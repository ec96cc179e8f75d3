// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuObserverList.h"
#include "platform/lumora/base/LuPool.h"
#include "platform/lumora/base/LuType.h"

#include <utility>
#include <vector>

class LuField;
class LuInput;
class LuOutput;

/// Counts references. The last unref calls destroy, which deletes the object.
class LuRefCounter : public LuTypedObject, public LuPooled {
public:
    void ref() const { ++m_refCount; }
    void unref() const;

    /// Gives a reference back without ending the object: for handing a fresh object on.
    void unrefNoDestroy() const { --m_refCount; }
    int getRefCount() const { return m_refCount; }

protected:
    LuRefCounter() = default;
    LuRefCounter(const LuRefCounter&) = delete;
    LuRefCounter& operator=(const LuRefCounter&) = delete;

    /// Called when the last reference has gone.
    virtual void destroy();

private:
    mutable std::int32_t m_refCount = 0;
};

/// Keeps an object for a scope in which code of others runs, which may give up what they hold of it. The
/// object may end with the scope. One that nobody has referenced yet, or null, is left alone.
class LuKeepAlive {
public:
    explicit LuKeepAlive(const LuRefCounter* object)
        : m_object(object && object->getRefCount() > 0 ? object : nullptr) {
        if (m_object)
            m_object->ref();
    }
    ~LuKeepAlive() {
        if (m_object)
            m_object->unref();
    }
    LuKeepAlive(const LuKeepAlive&) = delete;
    LuKeepAlive& operator=(const LuKeepAlive&) = delete;

private:
    const LuRefCounter* m_object;
};

/// One change on its way up the graph.
struct LuNotification {
    LuBase* origin = nullptr; ///< The object that changed.
    LuField* field = nullptr; ///< The field of it that changed; null when the list of children did.
    std::uint32_t stamp = 0;  ///< Visits each object once, however many ways lead up to it.
    bool isMuted = false;     ///< An object with notification off stands on the way: sensors stay silent.
};

/// An object with a name, that tells who observes it of its changes.
class LuBase : public LuRefCounter {
public:
    static LuType getClassTypeId();

    /// The DEF name; empty when it has none. Several objects may have one name.
    LvName getName() const { return m_name; }
    void setName(LvName name);

    /// All objects of a name, in the order in which they got it.
    static const std::vector<LuBase*>& getNamed(LvName name);

    /// Switches notification on or off; the value before is the result. While it is off no sensor fires for
    /// a change in this object, or below it by way of this object. Cached results are dropped all the same.
    bool enableNotify(bool isEnabled) { return std::exchange(m_isNotifyEnabled, isEnabled); }
    bool isNotifyEnabled() const { return m_isNotifyEnabled; }

    /// Tells all observers that this object, or with `field` this field of it, has changed.
    void startNotify(LuField* field = nullptr) {
        if (tellsOfChanges())
            tellOfChange(field);
    }

    /// False as long as all that lies above knows of a change already; see notify.
    bool tellsOfChanges() const { return !m_hasToldAbove || s_numListeners > 0; }

    /// Takes a change in from below and hands it on. Called by the fields and lists that hold objects.
    ///
    /// All that lies above an object hears of a change at once, but of further changes only after a traversal
    /// has come by: what was computed above has been dropped already, and nobody can have computed it anew.
    /// So the thousands of changes by which a graph is set up cost little each. While anybody must hear of
    /// every change (addListener), all changes climb.
    void notify(LuNotification& notification);

    /// To be called by whatever computes and keeps something that depends on this object, before it does. An
    /// action does it for each object it comes to.
    void noteVisit() const { m_hasToldAbove = false; }

    /// Counts those who must hear of every change, wherever they stand: the sensors on nodes, and all that
    /// observes a field which holds nodes.
    static void addListener() { ++s_numListeners; }
    static void removeListener() { --s_numListeners; }

    void addObserver(LuObserver observer) { m_observers.add(observer); }
    void removeObserver(LuObserver observer) { m_observers.remove(observer); }

    /// The number of places that hold or observe this object.
    const LuObserverList& getObservers() const { return m_observers; }

    /// Reads one object of the given type from a file: a description by type name, by DEF and type name, or
    /// USE of one before. `base` is null at the end of a list of children, or of the file; with `isChild`
    /// false, where one object must stand, only for an empty place in a binary file. False on a failure,
    /// which has been reported.
    ///
    /// A new object comes without a reference. One with a name is held by `in` until that is closed, so it
    /// must be referenced before.
    static bool read(LuInput* in, LuBase*& base, LuType type, bool isChild = true);

    /// Reads what stands between an object's braces. `flags`: bit 2 (value 2) says that a binary object has
    /// children.
    virtual bool readInstance(LuInput* in, unsigned short flags);

    /// In the writer's first stage: counts one more place that writes this object.
    virtual void addWriteReference(LuOutput* out, bool isFromField = false);

    /// In the second stage: true when the first has counted this object.
    virtual bool shouldWrite();

    /// Writes what stands before an object's fields: type, DEF name and opening brace, or USE. True when the
    /// object is done with by that: it has been written before.
    bool writeHeader(LuOutput* out, bool isGroup, bool isEngine);

    /// Writes the closing brace.
    void writeFooter(LuOutput* out);

protected:
    LuBase() = default;
    ~LuBase() override;

    /// Throws away what the object has computed from its fields and from what lies below.
    virtual void invalidateCaches() {}

private:
    void tellOfChange(LuField* field);

    LvName m_name;
    LuObserverList m_observers;
    std::uint32_t m_notifyStamp = 0;
    bool m_isNotifyEnabled = true;

    /// Since the last traversal. So has a new object: nobody has computed anything from it yet, and the list
    /// or field that takes it tells of that itself.
    mutable bool m_hasToldAbove = true;
    static int s_numListeners;
};
