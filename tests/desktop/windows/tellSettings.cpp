// SPDX-License-Identifier: MIT
// Tells all windows that a setting of the user has changed, as the system's control panel does.
#include <windows.h>

int main() {
    constexpr UINT PATIENCE = 5000; // milliseconds
    DWORD_PTR result = 0;
    const LRESULT isTold =
        SendMessageTimeoutA(HWND_BROADCAST, WM_SETTINGCHANGE, 0, 0, SMTO_ABORTIFHUNG, PATIENCE, &result);
    return isTold ? 0 : 1;
}
