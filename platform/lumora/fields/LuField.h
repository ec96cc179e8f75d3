// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuBase.h"

class LuFieldContainer;
class LuFieldSensor;

/// A value of an object that has a name, can be read from and written to files, and can be watched.
///
/// Setting a value clears the default flag and tells the sensors on the field, the fields that are connected
/// from it, and the object that holds it, before setValue returns.
class LuField {
public:
    LuField(const LuField&) = delete;
    LuField& operator=(const LuField&) = delete;
    virtual ~LuField();

    /// The name of the field's kind, "SFBool".
    virtual const char* getTypeName() const = 0;

    LuFieldContainer* getContainer() const { return m_container; }
    void setContainer(LuFieldContainer* container) { m_container = container; }

    /// The default flag keeps the field out of written files. Any setting of the value clears it.
    bool isDefault() const { return m_isDefault; }
    void setDefault(bool isDefault) { m_isDefault = isDefault; }

    /// Bits of the field's state; the bit of mask 4 says that the field is ignored.
    int getStatusFlags() const {
        return (m_isDefault ? 1 : 0) | (m_isConnected ? 2 : 0) | (m_isIgnored ? 4 : 0);
    }
    bool isIgnored() const { return m_isIgnored; }
    void setIgnored(bool isIgnored) { m_isIgnored = isIgnored; }

    /// One-way connection: this field takes the master's value now and on each later change of it. Fields of
    /// different kinds don't connect; that is reported. A connection replaces the one before. Circles end
    /// where they began.
    bool connectFrom(LuField* master);
    void disconnect();
    bool isConnected() const { return m_isConnected; }
    LuField* getConnectedField() const;

    /// Tells of a change without changing anything.
    inline void touch();

    /// Reads the value from a file, writes it to one. False on a failure, which has been reported.
    virtual bool readValue(LuInput* in) = 0;
    virtual void writeValue(LuOutput* out) const = 0;

    /// Compares and copies values between fields of one kind; fields of other kinds are never equal, and
    /// copying from them does nothing.
    virtual bool isSame(const LuField& other) const = 0;
    virtual void copyFrom(const LuField& other) = 0;

    /// The value as text, as it stands in a text file.
    LvString getText() const;

    /// Sets the value from text. False, with a message and the old value kept, when the text is no value.
    bool setText(const LvString& text);

    /// Counts, in the writer's first stage, what the value refers to.
    virtual void addWriteReferences(LuOutput*) const {}

    /// Used by sensors and connections.
    void addObserver(LuObserver observer) { m_observers.add(observer); }
    void removeObserver(LuObserver observer) { m_observers.remove(observer); }
    const LuObserverList& getObservers() const { return m_observers; }

    /// True when nobody watches the field but this sensor, which may be null.
    bool isWatchedOnlyBy(LuSensor* sensor) const {
        return m_observers.isEmpty() || (sensor && m_observers.holdsOnly(LuObserver(sensor)));
    }

    /// An object that this field holds has changed.
    void notifyFromBelow(LuNotification& notification);

    /// True for a field whose value is nodes: it changes, too, with what lies below them.
    bool holdsNodes() const { return m_holdsNodes; }

protected:
    explicit LuField(bool holdsNodes = false) : m_holdsNodes(holdsNodes) {}

    /// To be called after each change of the value.
    inline void valueChanged(bool clearDefault = true);

    /// The same as if a sensor, which may be null, were not attached.
    void valueChangedUnheardBy(LuSensor* sensor) {
        m_isDefault = false;
        if (m_container || !m_observers.isEmpty())
            tellOfChange(sensor);
    }

private:
    void tellOfChange(LuSensor* deaf);
    void tellObservers(LuNotification& notification, LuSensor* deaf);
    void passOn(LuField& slave);

    LuFieldContainer* m_container = nullptr;
    LuObserverList m_observers;
    bool m_isDefault : 1 = true;
    bool m_isConnected : 1 = false;
    bool m_isIgnored : 1 = false;
    bool m_isPassingOn : 1 = false;
    const bool m_holdsNodes : 1;
};
