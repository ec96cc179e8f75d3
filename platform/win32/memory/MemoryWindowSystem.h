// SPDX-License-Identifier: MIT
#pragma once

/// The knobs of the window system in memory, for tests: what no Win32 function offers.
class LuMemoryWindowSystem {
public:
    /// Destroys all windows, empties the message queue and takes back what the other operations have set.
    /// Registered classes stay, as they do in a process.
    static void reset();

    /// Number of windows that live, the hidden ones included.
    static int getNumWindows();

    /// Number of device contexts that were taken and not given back, and of fonts, brushes and icons that
    /// were made and not deleted.
    static int getNumDrawingObjects();

    /// Makes the next `count` calls of RegisterClassA, or of CreateWindowExA and CreateWindowExW, fail.
    static void failRegistrations(int count);
    static void failCreations(int count);

    /// Whether a key (VK_SHIFT) is held down, for GetKeyState.
    static void setKeyDown(int key, bool down);
};
