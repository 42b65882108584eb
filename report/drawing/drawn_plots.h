// The pictures of the graphs of a run's documents.
#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <functional>
#include <list>
#include <string>
#include <unordered_map>

namespace report {

/// A graph's picture, or the reason why it has none.
struct Picture {
    std::string svg;     ///< from <svg> to </svg>; empty without a picture
    std::string reason;  ///< why there is none, to follow "cannot be drawn: "; no full stop
};

/// Told now and then how many plots of how many are drawn.
using Progress = std::function<void(std::size_t drawn, std::size_t total)>;

class PictureBook {
public:
    /// Draws nothing yet. The documents outlive the book and do not change.
    /// @param progress  is told of pictures, the last time that all are drawn, whatever became of them
    PictureBook(const std::list<rapidjson::Document>& documents, Progress progress);

    /// The picture of a graph of these documents. All are drawn when the first is asked for, by one process of gnuplot.
    const Picture& pictureOf(const rapidjson::Value& graph);

private:
    void drawAll();

    const std::list<rapidjson::Document>& documents_;
    Progress progress_;
    std::unordered_map<const rapidjson::Value*, Picture> pictures_;
};

}  // namespace report
