#include "report/plots/gpl_statement.h"

#include "report/plots/plot_error.h"
#include "text/wording.h"

#include <algorithm>
#include <cstddef>

namespace report {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view nameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_.";

class StatementParser {
public:
    explicit StatementParser(std::string_view statement)
        : statement_(statement)
    {
    }

    GplStatement parse()
    {
        GplStatement result;
        result.kind = takeName("the kind of the statement");
        take(':');
        result.variable = takeVariable();
        result.expression = takeExpression();
        skipBlanks();
        if (!atEnd()) {
            failExpecting("the end of the statement");
        }
        return result;
    }

private:
    bool atEnd() const { return position_ == statement_.size(); }

    bool stands(char character) const { return !atEnd() && statement_[position_] == character; }

    void skipBlanks()
    {
        while (!atEnd() && blanks.find(statement_[position_]) != std::string_view::npos) {
            ++position_;
        }
    }

    [[noreturn]] void failExpecting(const std::string& expected) const
    {
        const std::string found = atEnd() ? "the end" : text::inQuotes(statement_.substr(position_, 1));
        throw PlotError("column " + std::to_string(position_ + 1) + ": expected " + expected + ", found " + found);
    }

    bool takeIf(char character)
    {
        skipBlanks();
        if (!stands(character)) {
            return false;
        }
        ++position_;
        return true;
    }

    void take(char character)
    {
        if (!takeIf(character)) {
            failExpecting(text::inQuotes(std::string(1, character)));
        }
    }

    /// The characters of the set that stand here; may be none.
    std::string takeRun(std::string_view set)
    {
        skipBlanks();
        const std::size_t end = std::min(statement_.find_first_not_of(set, position_), statement_.size());
        std::string run(statement_.substr(position_, end - position_));
        position_ = end;
        return run;
    }

    std::string takeName(const std::string& expected)
    {
        std::string name = takeRun(nameCharacters);
        if (name.empty()) {
            failExpecting(expected);
        }
        return name;
    }

    /// The name before an equals sign, or nothing where there is none.
    std::string takeVariable()
    {
        const std::size_t start = position_;
        std::string name = takeRun(nameCharacters);
        if (!name.empty() && takeIf('=')) {
            return name;
        }
        position_ = start;
        return "";
    }

    GplExpression takeExpression()
    {
        skipBlanks();
        if (stands('"')) {
            return takeText();
        }
        const std::string name = takeName("a name, a number or a text");
        if (name.find_first_not_of(digits) == std::string::npos) {
            return {GplExpression::Kind::Number, name, {}};
        }
        skipBlanks();
        if (stands('(')) {
            return takeCall(name);
        }
        return stands('*') ? takeProduct(name) : GplExpression{GplExpression::Kind::Name, name, {}};
    }

    GplExpression takeCall(const std::string& name)
    {
        GplExpression call{GplExpression::Kind::Call, name, {}};
        take('(');
        ++depth_;
        if (!takeIf(')')) {
            do {
                call.arguments.push_back(takeExpression());
            } while (takeIf(','));
            take(')');
        }
        --depth_;
        return call;
    }

    GplExpression takeProduct(const std::string& first)
    {
        GplExpression product{GplExpression::Kind::Product, "", {{GplExpression::Kind::Name, first, {}}}};
        while (takeIf('*')) {
            product.arguments.push_back({GplExpression::Kind::Name, takeName("a name"), {}});
        }
        return product;
    }

    GplExpression takeText()
    {
        const std::size_t begin = position_ + 1;
        for (std::size_t quote = statement_.find('"', begin); quote != std::string_view::npos;
             quote = statement_.find('"', quote + 1)) {
            if (closesItsCall(quote)) {
                position_ = quote + 1;
                return {GplExpression::Kind::Text, std::string(statement_.substr(begin, quote - begin)), {}};
            }
        }
        throw PlotError("column " + std::to_string(position_ + 1) + ": the text that begins here does not end");
    }

    bool closesItsCall(std::size_t quote) const
    {
        StatementParser rest(statement_);
        rest.position_ = quote + 1;
        std::size_t closed = 0;
        while (rest.takeIf(')')) {
            ++closed;
        }
        rest.skipBlanks();
        if (rest.atEnd()) {
            return closed == depth_;
        }
        return closed > 0 && closed < depth_ && rest.takeIf(',') && rest.aCallStands();
    }

    bool aCallStands() { return !takeRun(nameCharacters).empty() && takeIf('('); }

    std::string_view statement_;
    std::size_t position_ = 0;
    std::size_t depth_ = 0;  ///< calls that are open
};

}  // namespace

GplStatement parseGplStatement(std::string_view statement)
{
    return StatementParser(statement).parse();
}

}  // namespace report
