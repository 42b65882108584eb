#include "tests/faults/commands.h"

#include <utility>

namespace tests {

const char* const stepOne = "bldatman_entry: Step1 Unknown error occurred.";
const char* const stepThree = "bldatman_entry: Step3 Unknown error occurred.";

namespace {

const char* const stepTwo = "bldatman_entry: Step2 Unknown error occurred.";
const char* const stepFive = "bldatman_entry: Step5 Unknown error occurred.";
const char* const sizesDiffer = "Warning: Data sets have different sizes. Processed up to the smallest size.";
const char* const lengthsDiffer = "BLDATMAN: Standard exception: Inner vectors must have the same size";

Ending delivered(Lines lines = {})
{
    return {std::move(lines), true};
}

Ending refused(Lines lines)
{
    return {std::move(lines), false};
}

Ending refusedSettings(Lines lines = {})
{
    lines.insert(lines.end(),
                 {"Error: get_Subcommand_Global sub-command : ",
                  "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.",
                  stepThree});
    return refused(lines);
}

/// A pair with too few cases.
Ending degreesOfFreedom(const std::string& degrees)
{
    return refused({"BLDATMAN: Standard exception: Error in function "
                    "boost::math::students_t_distribution<double>::students_t_distribution: Degrees of freedom "
                    "argument is " +
                    degrees + ", but must be > 0 !"});
}

/// The first pair has a case with so many values, and every pair has two with so many.
EndingsByValues combined(int oneCase, int twoCases)
{
    return {{noColumns, refused({stepFive})},
            {0, degreesOfFreedom("-1")},
            {oneCase, degreesOfFreedom("0")},
            {twoCases, delivered()}};
}

std::string spaced(const std::string& names)
{
    std::string text;
    for (const char name : names) {
        text += std::string(1, name) + ' ';
    }
    return text;
}

}  // namespace

std::string Command::text() const
{
    return "VARIABLE=" + spaced(first) + (second.empty() ? "" : "WITH=" + spaced(second)) + rest;
}

// Together they reach every table and every plot in each of their forms, but for the plot of more points than are moved
// apart, and each way in which the settings are read or refused. What no command can reach is a variable that is not
// scale being described to the host: it is refused before.
const std::vector<Command> commands{
    {"a",
     "b",
     "CRITERIA(CLASSMISSING=INCLUDE LOGTRANSFORM=TRUE PERCENTAGE=TRUE CILEVEL_AGREEMENT=90) "
     "PRINT(DETAILS ROWS=3 SORT(BY=MEAN DESCENDING=FALSE) MEANDIFF AGREEMENT PERCENTAGE) "
     "PLOT(RATIO REFLINE AGREEMENT_LIMITS=CI CI_MEANDIFF)",
     delivered(),
     {combined(1, 2), combined(1, 2)}},
    // The one pair is a and c; of the list that is longer, b matters not.
    {"a",
     "cb",
     "PAIRED=YES CRITERIA(SCOPE=LISTWISE AGREEMENT_LIMITS=TWOSD CILEVEL_MEANDIFF=90) "
     "PRINT(DETAILS SORT AGREEMENT) PLOT(AGREEMENT_LIMITS)",
     delivered({sizesDiffer}),
     {{{noColumns, refused({sizesDiffer, stepFive})}, {0, refused({lengthsDiffer})}, {5, delivered({sizesDiffer})}},
      {{noColumns, refused({lengthsDiffer})}, {9, delivered({sizesDiffer})}}},
     "zh_CN"},
    // Both lists are one, and break off together; c needs a third case.
    {"abc", "", "", delivered(), {combined(2, 9)}},
    {"ab",
     "ba",
     "CRITERIA(AGREEMENT_LIMITS=THREESD) PRINT(DETAILS SORT(BY=RATIO DESCENDING=TRUE) MEANDIFF AGREEMENT) "
     "PLOT(RATIO)",
     delivered(),
     {combined(1, 4), combined(1, 4)},
     "es"},
    // No such table of texts.
    {"a",
     "b",
     "PRINT(AGREEMENT DETAILS SORT(BY=DIFFERENCE)) PLOT()",
     delivered(),
     {combined(1, 2), combined(1, 2)},
     "ru"},
    {"ab", "", "PAIRED=YES", refused({stepFive}), {{{noColumns, refused({stepFive})}}}},
    {"at", "b", "", refusedSettings({"get_Subcommand_Global: variable.GetMeasurementLevel(). 1"}), {}},
    {"a", "t", "", refusedSettings(), {{{noColumns, refusedSettings()}}}},
    {"az", "b", "", refusedSettings({"get_Subcommand_Global: Error during ValidateVariables."}), {}},
    {"a", "b", "PRONT()", refused({stepTwo}), {}},
};

}  // namespace tests
