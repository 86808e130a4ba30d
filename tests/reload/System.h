#pragma once

#include <string>

// What the test asks the system for, past the library.

/// Null if the module cannot be loaded; the reason has been printed then.
void* LoadModule(char const* path);
void* FindFunction(void* module, char const* name);
void UnloadModule(void* module);

/// Whether the module or library of that path or name is still there.
bool IsLoaded(char const* name);

/// The heap's bytes that are in use.
long long CountHeapBytes();

/// The number as the user's locale writes it; all in Windows-1252.
std::string FormatBySystem(long long number);
