// The pictures of the graphs of a run's documents.
#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <vector>

namespace standin {

/// A graph's picture, or the reason why it has none.
struct Picture {
    std::string svg;             ///< from <svg> to </svg>; empty without a picture
    std::string reason;          ///< why there is none, to follow "This plot cannot be drawn: "; no full stop
    std::string horizontalAxis;  ///< its label; empty where the statements cannot be read
};

class PictureBook {
public:
    /// Told how many pictures of how many are drawn.
    using Progress = std::function<void(std::size_t drawn, std::size_t total)>;

    /// Draws nothing yet. The documents outlive the book and do not change.
    explicit PictureBook(const std::list<rapidjson::Document>& documents, Progress progress = {});

    /// For each document, in order, the pictures of its graphs, in their order; drawn when first asked for, with one
    /// process of gnuplot a document. Their identifiers differ over all documents.
    const std::vector<std::vector<Picture>>& pictures();

private:
    std::vector<Picture> draw(const rapidjson::Document& document, std::size_t drawnBefore, std::size_t total) const;

    const std::list<rapidjson::Document>& documents_;
    Progress progress_;
    std::optional<std::vector<std::vector<Picture>>> pictures_;
};

}  // namespace standin
