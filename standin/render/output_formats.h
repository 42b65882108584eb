// The forms in which documents can be written.
#pragma once

#include "standin/render/report.h"

#include <string>
#include <string_view>

namespace standin {

using Renderer = std::string (*)(const Report& report);

/// The renderer for files of that name, by its ending; null when there is none.
Renderer rendererFor(std::string_view fileName);

/// The endings that there are renderers for, in words: ".json, .html or .txt".
std::string knownEndings();

}  // namespace standin
