// Every text that the output shows, by English key, in the output language.
#pragma once

#include <map>
#include <string>

namespace bldatman {

class BldatmanTextCatalogue {
public:
    /// The output language: the last component of the host's language folder; where the folder's path has only one
    /// component, the host's language code with '_' for every '-'. The code is used as it is: one that names no table
    /// is no error.
    ///
    /// @throws std::out_of_range "invalid string position" when the host has no path for the folder
    static std::string chooseLanguage();

    explicit BldatmanTextCatalogue(const std::string& language);
    BldatmanTextCatalogue(const BldatmanTextCatalogue&) = delete;
    BldatmanTextCatalogue& operator=(const BldatmanTextCatalogue&) = delete;

    /// The text of a key with the first "^1" replaced by `arg1`, and then the first "^2" of the outcome by `arg2`, both
    /// inserted as they are. When the language has no table, or its table has no such key, the result is the key
    /// itself, placeholders included: there is no fallback to another language.
    std::string getText(const std::string& key, const std::string& arg1 = {}, const std::string& arg2 = {}) const;

private:
    using Texts = std::map<std::string, std::string>;

    void fill();

    std::string language_;
    std::map<std::string, Texts> texts_;  ///< by language code
};

}  // namespace bldatman
