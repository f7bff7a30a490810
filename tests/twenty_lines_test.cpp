// The README's "Host and translator in twenty lines", compiled and run as it stands there.
#include "twenty_lines/host_and_translator.h"

#include <mp/mp_shared_buffer.h>

#include <gtest/gtest.h>

namespace {

TEST(TwentyLines, TheHostReceivesTheStructureTheTranslatorMade)
{
    const auto structure = receive(translate(importRequest(L"bracket.stp")));
    ASSERT_TRUE(structure);
    EXPECT_TRUE(structure->isLoaded());
    ASSERT_TRUE(structure->getBlockById(1));
    EXPECT_EQ(structure->getBlockById(1)->name(), L"bracket.stp");
    ASSERT_EQ(structure->rootBlockReferences().size(), 1u);
    EXPECT_EQ(structure->rootBlockReferences()[0]->blockId(), 1u);
    EXPECT_FALSE(mp::SharedBuffer<char>::remove(structure->source())); // removed once loaded

    // Without STEP options the translator answers with a message, which is no structure.
    hrm::Command command = mp::fromText<hrm::Command>(importRequest(L"bracket.stp"));
    command.setImportOptions(hrm::Command::newImportOptions());
    EXPECT_FALSE(receive(translate(mp::toText(command))));
}

} // namespace
