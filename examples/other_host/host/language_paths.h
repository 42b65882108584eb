// The output language: the last component of the folder that the finder of kind 3 knows or, where its path has one
// component alone, the code of the language setting. The path is in UTF-8, not empty, and may end in a backslash.
#pragma once

#include "this_host.h"

#include <cstring>

struct OLang : other::Object {
    OLang() { begin("OLang"); }

    /// '-' and '_' are the same to the module.
    std::string GetLanguageCode() { return call("OLang::GetLanguageCode"), theHost.languageCode; }
};

struct ExtNameStr {
    std::string GetU8() { return call("ExtNameStr::GetU8"), theHost.languageFolder; }
};

struct PathFinder {
    /// The name of this operation is the host's; the module has it in one place.
    ExtNameStr* getPath() { return call("PathFinder::getPath"), &folder; }

    ExtNameStr folder;
};

struct PathFactory {
    static PathFinder* getPathInstance(int kind) { return call("PathFactory::getPathInstance", kind), &finder; }

    static inline PathFinder finder;
};

/// In UTF-8 no byte of a longer character is a backslash.
inline const char* QUVOMBstrrchr_8(const char* text, int byte)
{
    return call("QUVOMBstrrchr_8", std::string(text), byte), std::strrchr(text, byte);
}
