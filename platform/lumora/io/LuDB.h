// SPDX-License-Identifier: MIT
#pragma once

class LuInput;
class LuSeparator;

/// Counts the starts of one part of the toolkit that no end has matched yet.
template <class Part>
class LuStartCount {
public:
    static void init() { ++s_initCount; }
    static void finish() { --s_initCount; }
    static int getInitCount() { return s_initCount; }

private:
    static int s_initCount;
};

/// Start and end of the scene toolkit, and reading of whole files.
class LuDB : public LuStartCount<LuDB> {
public:
    /// Registers the toolkit's classes on the first call. Each call is to be matched by a finish.
    static void init();

    /// Reads all that is left of a file under a new separator, which comes without a reference. Null, with a
    /// message, when the file has a fault; nothing of it is left then.
    static LuSeparator* readAll(LuInput* in);
};

/// Start and end of the node kits.
class LuNodeKit : public LuStartCount<LuNodeKit> {};

/// Start and end of the draggers.
class LuInteraction : public LuStartCount<LuInteraction> {};

// The counts are the library's: a program beside it must not make some of its own.
extern template class LuStartCount<LuDB>;
extern template class LuStartCount<LuNodeKit>;
extern template class LuStartCount<LuInteraction>;

/// What is true of the whole process.
class LuDBImpl {
public:
    /// Dialogs are built in the scene, not as windows. At the start it says whether the system has windows.
    static bool m_isHeadless;

    /// The process is one of a cluster that shares scenes, or renders for tracked displays. Both are set by
    /// modules that do so.
    static bool isRunningCluster() { return s_isRunningCluster; }
    static bool isRunningART() { return s_isRunningART; }
    static void setRunningCluster(bool isRunning) { s_isRunningCluster = isRunning; }
    static void setRunningART(bool isRunning) { s_isRunningART = isRunning; }

private:
    static bool s_isRunningCluster;
    static bool s_isRunningART;
};
