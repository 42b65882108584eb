// For tests that look at drawn plots.
#pragma once

#include "report/drawing/child_process.h"
#include "report/plots/plot_error.h"

#include <gtest/gtest.h>

namespace tests {

/// Its tests are skipped where there is no gnuplot to draw with.
class DrawingTest : public testing::Test {
protected:
    void SetUp() override
    {
        try {
            report::runProgram({"gnuplot", "--version"}, "", [](std::string_view) {});
        } catch (const report::PlotError& error) {
            GTEST_SKIP() << error.what();
        }
    }
};

}  // namespace tests
