// Tells the host's parser what a BLDATMAN command may contain.
#pragma once

#include "host/command_parser.h"
#include "host/procedure.h"

namespace bldatman {

/// The description is fixed: it depends on nothing in the data or the command.
class BldatmanCommandDescriber {
public:
    /// Keeps references to all three; only the descriptor is used.
    BldatmanCommandDescriber(QUVO_TokenSequence& tokens, ProcedureDataSource& source, CommandDescriptor& descriptor);

    /// Adds the four subcommands to the descriptor: the leading one without a name, CRITERIA, PRINT, PLOT. 0: done;
    /// 1: failed, and reported on the standard error stream; what was added before stays.
    int describe();

    /// Adds subcommand 0, 1, 2 or 3, in the order above. 0: done; 1: no such number, reported likewise.
    int m_setSubCommandDescription(int subcommand);

private:
    void addVariables();
    void addCriteria();
    void addPrint();
    void addPlot();

    CommandDescriptor& commandDescriptor_;
    // Part of the object's agreed layout; the description needs neither.
    [[maybe_unused]] QUVO_TokenSequence& tokens_;
    [[maybe_unused]] ProcedureDataSource& dataSource_;
    ParserMessage parserMessage_;
    [[maybe_unused]] bool flag_ = false;  ///< likewise; nothing reads or writes it
};

}  // namespace bldatman
