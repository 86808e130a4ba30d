#pragma once

#if !defined(_WIN32)
#    error "The UI helpers are for Windows; only StackLayoutHelper.h is for every platform."
#endif

// What the headers of this folder name of Win32, so that they do without <windows.h>. A host may include that before or
// after them, not with NO_STRICT: HWND is HWND__*, HFONT is HFONT__*, HDC is HDC__*, HINSTANCE is HINSTANCE__* and
// DRAWITEMSTRUCT is tagDRAWITEMSTRUCT. Where they say unsigned long long and long long, WPARAM and LPARAM or LRESULT
// fit.
struct HWND__;
struct HFONT__;
struct HDC__;
struct HINSTANCE__;
struct tagDRAWITEMSTRUCT;
