#include "text/wrapping.h"

#include "text/unicode.h"
#include "text/utf8.h"

#include <algorithm>
#include <utility>

namespace text {

namespace {

constexpr std::u32string_view closingMarks = U"、。，．：；！？）」』】〕〉》";
constexpr std::u32string_view openingMarks = U"（「『【〔〈《";

bool mayPart(char32_t before, char32_t after)
{
    return characterWidth(before) == 2 && characterWidth(after) == 2 &&
           openingMarks.find(before) == std::u32string_view::npos &&
           closingMarks.find(after) == std::u32string_view::npos;
}

/// The end of the character that begins at `begin`, with the marks that combine with it.
std::size_t characterEnd(std::string_view text, std::size_t begin)
{
    std::size_t end = begin;
    do {
        end += codePointAt(text, end).length;
    } while (end < text.size() && characterWidth(codePointAt(text, end).value) == 0);
    return end;
}

/// The length of the word that the text begins with: what must stay on one line.
std::size_t wordLength(std::string_view text)
{
    char32_t previous = 0;
    std::size_t end = 0;
    while (end < text.size() && text[end] != ' ') {
        const char32_t next = codePointAt(text, end).value;
        if (mayPart(previous, next)) {
            break;
        }
        previous = next;
        end = characterEnd(text, end);
    }
    return end;
}

/// The length of the longest beginning of the word that fits in `width` columns, at least one character.
std::size_t fittingLength(std::string_view word, std::size_t width)
{
    std::size_t length = 0;
    std::size_t taken = 0;
    while (length < word.size()) {
        const std::size_t end = characterEnd(word, length);
        taken += textWidth(word.substr(length, end - length));
        if (length > 0 && taken > width) {
            break;
        }
        length = end;
    }
    return length;
}

/// A word and the blanks before it.
struct SpacedWord {
    std::string_view blanks;
    std::string_view word;
};

/// Takes the next word off a line that is not empty.
SpacedWord takeWord(std::string_view& line)
{
    const std::size_t blanks = line.find_first_not_of(' ');
    const std::size_t length = wordLength(line.substr(blanks));
    const SpacedWord taken{line.substr(0, blanks), line.substr(blanks, length)};
    line.remove_prefix(blanks + length);
    return taken;
}

/// Takes the next line off the text; what is left of it ends in a word.
std::string_view takeLine(std::string_view& text)
{
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    text.remove_prefix(line.size());
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

/// Lines that are filled word by word.
class FilledLines {
public:
    explicit FilledLines(std::size_t width)
        : width_(width)
    {
    }

    void beginLine()
    {
        lines_.emplace_back();
        taken_ = 0;
    }

    void add(const SpacedWord& next)
    {
        const std::size_t needed = textWidth(next.blanks) + textWidth(next.word);
        if (taken_ + needed <= width_) {
            append(next.blanks);
            append(next.word);
        } else {
            addToNewLine(next.word);
        }
    }

    std::vector<std::string> take() { return std::move(lines_); }

private:
    void append(std::string_view text)
    {
        lines_.back() += text;
        taken_ += textWidth(text);
    }

    void addToNewLine(std::string_view word)
    {
        while (!word.empty()) {
            if (taken_ > 0) {
                beginLine();
            }
            const std::size_t length = fittingLength(word, width_);
            append(word.substr(0, length));
            word.remove_prefix(length);
        }
    }

    std::size_t width_;
    std::size_t taken_ = 0;
    std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> wrapText(std::string_view text, std::size_t width)
{
    FilledLines lines(width);
    do {
        std::string_view line = takeLine(text);
        lines.beginLine();
        while (!line.empty()) {
            lines.add(takeWord(line));
        }
    } while (!text.empty());
    return lines.take();
}

std::size_t widestWord(std::string_view text)
{
    std::size_t widest = 0;
    while (!text.empty()) {
        for (std::string_view line = takeLine(text); !line.empty();) {
            widest = std::max(widest, textWidth(takeWord(line).word));
        }
    }
    return widest;
}

}  // namespace text
