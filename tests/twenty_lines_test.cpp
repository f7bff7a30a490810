// The README's "Host and translator in twenty lines", compiled and run as it stands there.
#include "twenty_lines/host_and_translator.h"

#include <mp/mp_shared_buffer.h>

#include <gtest/gtest.h>

namespace {

TEST(TwentyLines, TheHostReceivesTheMeshTheTranslatorMade)
{
    const std::vector<float> vertices{0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f, 1.f, 0.f};
    const auto block = receive(translate(importRequest(L"bracket.stp"), vertices));
    ASSERT_TRUE(block);
    const auto& face = block->visualizationData()->sceneRootNodes().at(0)->mesh()->faces().at(0);
    EXPECT_EQ(face->vertices(), vertices);
    EXPECT_FALSE(mp::SharedBuffer<char>::remove(block->source())); // removed once loaded

    // Without STEP options the translator answers with a message, which is no block.
    hrm::Command command = mp::fromText<hrm::Command>(importRequest(L"bracket.stp"));
    command.setImportOptions(hrm::Command::newImportOptions());
    EXPECT_FALSE(receive(translate(mp::toText(command), vertices)));
}

} // namespace
