// What one read of the case reader delivers: a description of its variables, in the order of their declaration.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace bldatman {

/// The kinds of a described variable.
enum VariableKind : int { kindContinuous = 0, kindNominal = 1, kindOrdinal = 2 };

struct AlgorithmVarEntry {
    std::string name;
    std::string label;  ///< the name where the variable has no label
    VariableKind kind = kindContinuous;
    unsigned categoryCount = 0;  ///< number of value labels; 0 for a continuous variable
};

/// Names are not empty and unique within one list.
class AlgorithmVarList {
public:
    AlgorithmVarList() = default;
    AlgorithmVarList(const AlgorithmVarList&) = default;
    AlgorithmVarList& operator=(const AlgorithmVarList&) = default;
    virtual ~AlgorithmVarList() = default;

    /// Appends a variable. Returns its index, or -1 when the name is empty or already there.
    int addContinuous(const std::string& name, const std::string& label);
    int addCategorical(const std::string& name, const std::string& label, unsigned categoryCount, bool nominal);

    /// The index of the entry of exactly that name, or -1.
    int findVariable(const std::string& name) const;

    /// Makes a continuous variable the frequency weight, replacing an earlier one in place; its name is not checked.
    /// Returns its index. Part of the list's agreed operations; nobody calls it, since no case weighting takes place.
    int setFrequencyWeight(const std::string& name, const std::string& label);

    /// Writes the list in words, for diagnosis. A nominal entry is shown as ordinal and continuous too, an ordinal one
    /// as continuous too: intended.
    void display(std::ostream& out) const;

    const std::vector<AlgorithmVarEntry>& entries() const { return entries_; }
    int frequencyWeightIndex() const { return frequencyWeightIndex_; }  ///< -1: none

private:
    int add(AlgorithmVarEntry entry);

    std::vector<AlgorithmVarEntry> entries_;
    int frequencyWeightIndex_ = -1;
};

}  // namespace bldatman
