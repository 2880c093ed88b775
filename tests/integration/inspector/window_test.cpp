// The inspector's window in a program: shown and hidden by the hot key, whatever the program has open.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "scenario.h"

using testing::HasSubstr;

namespace {

class InspectorWindow : public Scenario {};
INSTANTIATE_TEST_SUITE_P(OnJdk, InspectorWindow, testing::ValuesIn(kReleases), testing::PrintToStringParamName());

TEST_P(InspectorWindow, HasTheNameThatScriptsFindItBy) {
    start();
    open_inspector();
    EXPECT_THAT(ask("inspector-dump"), HasSubstr("VantrelFrame vantrel\n"));
    close_inspector();
    EXPECT_EQ(ask("inspector-dump"), "");
    ask("dispose");
    EXPECT_EQ(program->wait(), 0);
}

}  // namespace
