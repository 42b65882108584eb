// The forms in which documents can be written.
#pragma once

#include <rapidjson/document.h>

#include <list>
#include <string>
#include <string_view>

namespace standin {

using Renderer = std::string (*)(const std::list<rapidjson::Document>& documents);

/// The renderer for files of that name, by its ending; null when there is none.
Renderer rendererFor(std::string_view fileName);

/// The endings that there are renderers for, in words: ".json or .txt".
std::string knownEndings();

}  // namespace standin
