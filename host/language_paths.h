// Contract of the host's language and path libraries: which output language is set and where its folder lies.
#pragma once

#include <memory>
#include <string>

/// The host's language settings.
class OLang {
public:
    OLang();
    ~OLang();
    OLang(const OLang&) = delete;
    OLang& operator=(const OLang&) = delete;

    /// The output-language code, possibly with '-' as separator; owned by this object.
    const std::string& GetLanguageCode() const;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// A path that can be read in several encodings; owned by the host.
class ExtNameStr {
public:
    /// The path in UTF-8, components separated by a backslash.
    const std::string& GetU8() const;

    struct Data;                                      ///< the host's own
    explicit ExtNameStr(std::unique_ptr<Data> made);  ///< for the host alone
    ExtNameStr(const ExtNameStr&) = delete;
    ExtNameStr& operator=(const ExtNameStr&) = delete;
    ~ExtNameStr();
    std::unique_ptr<Data> data;
};

/// Knows one of the host's folders; owned by the host.
class PathFinder {
public:
    PathFinder() = default;
    virtual ~PathFinder() = default;
    PathFinder(const PathFinder&) = delete;
    PathFinder& operator=(const PathFinder&) = delete;

    /// The folder; owned by this object. The operation's name is the host's: another's may differ.
    virtual const ExtNameStr* getPath() = 0;
};

/// Hands out path finders.
class PathFactory {
public:
    /// The finder for a kind of folder: 3 is the one whose last component names the output language.
    static PathFinder* getPathInstance(int kind);
};

/// The last occurrence of `byte` in a zero-terminated text, multibyte-safe; null when there is none. The result points
/// into `text`.
const char* QUVOMBstrrchr_8(const char* text, int byte);
