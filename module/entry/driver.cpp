#include "module/entry/driver.h"

#include "host/command_parser.h"
#include "host/procedure.h"
#include "module/analysis/analysis.h"
#include "module/analysis/pair_result.h"
#include "module/diagnostics.h"
#include "module/output/output.h"
#include "module/settings/input_setting.h"
#include "module/syntax/command_describer.h"

#include <vector>

namespace bldatman {

namespace {

constexpr int failure = 1;

}  // namespace

// The objects are created just before the step that needs them and destroyed in reverse order. The tests differ on
// purpose: our own steps fail with exactly 1, the host's parser with anything but 0.
void bldatman_entry()
{
    BpProcedure procedure("BLDATMAN", 10);
    ProcedureDataSource dataSource;
    CommandDescriptor descriptor("BLDATMAN");
    QUVO_TokenSequence tokens(true);
    BldatmanCommandDescriber describer(tokens, dataSource, descriptor);
    if (describer.describe() == failure) {
        reportLine("bldatman_entry: Step1 Unknown error occurred.");
        return;
    }

    CommandSpec parsedCommand;
    UniversalParser parser(tokens, parsedCommand, descriptor);
    if (parser.getCommandSpecifications() != 0) {
        reportLine("bldatman_entry: Step2 Unknown error occurred.");
        return;
    }

    BldatmanInputSetting settings(parsedCommand, descriptor, dataSource);
    if (settings.start() == failure) {
        reportLine("bldatman_entry: Step3 Unknown error occurred.");
        return;
    }

    std::vector<BldatmanPairResult> results;
    BldatmanAnalysis analysis(settings, results);
    if (analysis.run() == failure) {
        reportLine("bldatman_entry: Step4 Unknown error occurred.");
        return;
    }

    BldatmanOutput output(procedure, dataSource, results, settings);
    if (output.generate() == failure) {
        reportLine("bldatman_entry: Step5 Unknown error occurred.");
    }
}

}  // namespace bldatman
