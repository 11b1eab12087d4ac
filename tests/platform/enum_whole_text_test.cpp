#include <gtest/gtest.h>

#include <string>

#include "platform/base/nex_Exception.h"
#include "platform/base/omu_PrimEnum.h"
#include "tests/support/qmx_test.h"

namespace enum_whole_text_test {

enum class WallEnm : std::int32_t { THIN_WALL = 0, THICK_WALL = 1 };
constexpr omu_EnumLiteral kWall[] = {{"THIN_WALL", 0}, {"THICK_WALL", 1}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(WallEnm) { return kWall; }
using Wall = omu_PrimEnum<WallEnm, 1>;

// A text with a NUL inside is not its prefix: lookups compare the whole text.
TEST(PrimEnumWholeText, ATextWithAnEmbeddedNulMatchesNoLiteral) {
  for (const std::string& text : {std::string("THIN_WALL\0X", 11), std::string("THIN_WALL\0", 10),
                                 std::string("\0THIN_WALL", 10)}) {
    SCOPED_TRACE(text.size());
    auto e = qmx_Catch<nex_CmdError>([&] { Wall w{cow_String(text)}; });
    EXPECT_EQ(e.Line(), 103);
    EXPECT_EQ(std::string(e.Message()).rfind("omu_PrimEnum(const cow_String&) - str not allowed: ", 0), 0u);
  }
  EXPECT_EQ(Wall(cow_String(std::string("THICK_WALL"))).GetValue(), WallEnm::THICK_WALL);
}

}  // namespace enum_whole_text_test
