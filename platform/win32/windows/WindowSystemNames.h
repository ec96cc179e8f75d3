// SPDX-License-Identifier: MIT
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>

// Macros of the system's headers with everyday names: they would cut into our own identifiers.
#undef ABSOLUTE
#undef ALTERNATE
#undef CreateWindow
#undef DELETE
#undef DIFFERENCE
#undef DOMAIN
#undef DrawText
#undef ERROR
#undef FindText
#undef GetClassInfo
#undef GetMessage
#undef GetObject
#undef IGNORE
#undef IN
#undef LoadImage
#undef MessageBox
#undef OPAQUE
#undef OPTIONAL
#undef OUT
#undef OVERFLOW
#undef RELATIVE
#undef STRICT
#undef SendMessage
#undef TRANSPARENT
#undef UNDERFLOW
#undef WINDING
#undef far
#undef interface
#undef near
#undef small
