// The system's headers, in the one order in which they can be read.
#pragma once

// clang-format off
#include <windows.h>
#include <ole2.h>
#include <ocidl.h>
#include <olectl.h>
#include <commdlg.h>
#include <cderr.h>
// clang-format on
