#include "host/language_paths.h"

#include "standin/border/host_call.h"
#include "standin/session/session.h"

#include <cstring>
#include <utility>

using standin::HostCall;

struct OLang::Data {
    std::string code;
};

OLang::OLang()
{
    HostCall call(HostCall::Constructor{}, "OLang::OLang");
    data = std::make_unique<Data>(Data{standin::Session::current().languageCode});
    call.creates(this);
}

OLang::~OLang()
{
    HostCall call(HostCall::Destructor{}, this, "OLang::~OLang");
    data.reset();
}

const std::string& OLang::GetLanguageCode() const
{
    HostCall call(this, "OLang::GetLanguageCode");
    return data->code;
}

struct ExtNameStr::Data {
    std::string path;
};

ExtNameStr::ExtNameStr(std::unique_ptr<Data> made)
    : data(std::move(made))
{
}

ExtNameStr::~ExtNameStr() = default;

const std::string& ExtNameStr::GetU8() const
{
    HostCall call(nullptr, "ExtNameStr::GetU8");
    return data->path;
}

namespace {

/// The one folder that this host has a finder for.
class LanguageFolder : public PathFinder {
public:
    const ExtNameStr* getPath() override
    {
        HostCall call(nullptr, "PathFinder::getPath");
        path_.data->path = standin::Session::current().languageFolder;
        return &path_;
    }

private:
    ExtNameStr path_{std::make_unique<ExtNameStr::Data>()};
};

}  // namespace

PathFinder* PathFactory::getPathInstance(int kind)
{
    constexpr int languageFolderKind = 3;
    HostCall call(nullptr, "PathFactory::getPathInstance", kind);
    if (kind != languageFolderKind) {
        call.fail("there is no folder of kind " + std::to_string(kind));
    }
    static LanguageFolder folder;
    return &folder;
}

const char* QUVOMBstrrchr_8(const char* text, int byte)
{
    // In UTF-8 the backslash never stands inside a character, so the plain search is multibyte-safe.
    HostCall call(nullptr, "QUVOMBstrrchr_8", text, byte);
    return std::strrchr(text, byte);
}
