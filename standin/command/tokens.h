// Cuts the text of a command into tokens.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

struct Token {
    enum class Kind {
        Word,    ///< a run of characters without meaning of their own: a keyword, a name, a number
        Quoted,  ///< a text in double quotes
        Symbol,  ///< one of = ( ) : ;
        End,
    };

    Kind kind;
    std::string text;  ///< of a quoted token, what stands between the quotes, doubled quotes made single
    std::size_t begin;
    std::size_t end;

    bool is(std::string_view symbol) const { return kind == Kind::Symbol && text == symbol; }
};

/// The tokens of text[begin, end), closed by an `End` token. Blanks separate, a comment runs from '#' to the end of its
/// line.
/// @throws CommandError  for a quote that is not closed and for bytes that are not UTF-8
std::vector<Token> tokenize(const std::string& text, std::size_t begin, std::size_t end);

/// True for a name that needs no quotes: letters of any alphabet, digits and _ . $ @
bool isBareName(std::string_view text);

}  // namespace standin
