#include "module/data/algorithm_var_list.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace bldatman {

namespace {

void displayKind(std::ostream& out, const AlgorithmVarEntry& entry)
{
    switch (entry.kind) {
    case kindNominal:
        out << ", nominal, " << entry.categoryCount << " levels";
        [[fallthrough]];
    case kindOrdinal:
        out << ", ordinal, " << entry.categoryCount << " levels";
        [[fallthrough]];
    default:
        out << ", continuous";
    }
}

}  // namespace

int AlgorithmVarList::addContinuous(const std::string& name, const std::string& label)
{
    return add({name, label, kindContinuous, 0});
}

int AlgorithmVarList::addCategorical(const std::string& name, const std::string& label, unsigned categoryCount,
                                     bool nominal)
{
    return add({name, label, nominal ? kindNominal : kindOrdinal, categoryCount});
}

int AlgorithmVarList::add(AlgorithmVarEntry entry)
{
    if (entry.name.empty() || findVariable(entry.name) >= 0) {
        return -1;
    }
    entries_.push_back(std::move(entry));
    return static_cast<int>(entries_.size()) - 1;
}

int AlgorithmVarList::findVariable(const std::string& name) const
{
    const auto found = std::ranges::find(entries_, name, &AlgorithmVarEntry::name);
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

int AlgorithmVarList::setFrequencyWeight(const std::string& name, const std::string& label)
{
    AlgorithmVarEntry weight = {name, label, kindContinuous, 0};  // before an entry moves that the texts may be part of
    if (frequencyWeightIndex_ == -1) {
        entries_.emplace_back();
        frequencyWeightIndex_ = static_cast<int>(entries_.size()) - 1;
    }
    entries_[static_cast<std::size_t>(frequencyWeightIndex_)] = std::move(weight);
    return frequencyWeightIndex_;
}

void AlgorithmVarList::display(std::ostream& out) const
{
    out << "Start Variable List Display\n\n";
    for (int i = 0; const AlgorithmVarEntry& entry : entries_) {
        out << "Variable " << i << ", name " << entry.name << ", label " << entry.label;
        displayKind(out, entry);
        out << (i == frequencyWeightIndex_ ? ", Frequency Weight\n" : "\n");
        ++i;
    }
    if (frequencyWeightIndex_ >= 0) {
        out << "Frequency Weight Variable Index = " << frequencyWeightIndex_ << '\n';
    } else {
        out << "Frequency Weight is not defined\n";
    }
    out << "\nEnd Variable List Display\n";
}

}  // namespace bldatman
