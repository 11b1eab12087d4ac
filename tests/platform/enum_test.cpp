#include <gtest/gtest.h>

#include <string>

#include "platform/base/nex_Exception.h"
#include "platform/base/omu_PrimEnum.h"
#include "tests/support/qmx_test.h"

namespace enum_test {

enum class NoiseEnm : std::int32_t { CORRELATED = 0, UNCORRELATED = 1, MOVING_NOISE = 2, USER = 3 };
// Stored out of value order on purpose.
constexpr omu_EnumLiteral kNoise[] = {
    {"CORRELATED", 0}, {"UNCORRELATED", 1}, {"USER", 3}, {"MOVING_NOISE", 2}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(NoiseEnm) { return kNoise; }

enum class EmptyEnm : std::int32_t {};
constexpr omu_EnumLiteral kEmpty[] = {{nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(EmptyEnm) { return kEmpty; }

using Noise = omu_PrimEnum<NoiseEnm, 1>;
constexpr const char* kSource = "QMXAbuTessarUtilities/ProtectedInterfaces/omu_PrimEnum";
constexpr const char* kPermissible = "CORRELATED, UNCORRELATED, USER, MOVING_NOISE";

TEST(PrimEnum, StringRefusals) {
  struct Case {
    const char* input;
    std::string message;
  };
  const Case cases[] = {
      {"correlated", std::string("omu_PrimEnum(const cow_String&) - str not allowed: correlated  Permissible: ") + kPermissible},
      {"", std::string("omu_PrimEnum(const cow_String&) - str not allowed:   Permissible: ") + kPermissible},
      {"CORRELATED ", std::string("omu_PrimEnum(const cow_String&) - str not allowed: CORRELATED   Permissible: ") + kPermissible},
  };
  for (const auto& c : cases) {
    auto e = qmx_Catch<nex_CmdError>([&] { Noise n{cow_String(c.input)}; });
    EXPECT_EQ(e.Message(), c.message);
    EXPECT_STREQ(e.File(), kSource);
    EXPECT_EQ(e.Line(), 103);
  }
}

// A text with a NUL inside is not its prefix: lookups compare the whole text.
TEST(PrimEnum, ATextWithAnEmbeddedNulMatchesNoLiteral) {
  for (const std::string& text : {std::string("USER\0X", 6), std::string("USER\0", 5), std::string("\0USER", 5)}) {
    SCOPED_TRACE(text.size());
    auto e = qmx_Catch<nex_CmdError>([&] { Noise n{cow_String(text)}; });
    EXPECT_EQ(e.Line(), 103);
    EXPECT_EQ(std::string(e.Message()).rfind("omu_PrimEnum(const cow_String&) - str not allowed: ", 0), 0u);
  }
}

TEST(PrimEnum, ValueRefusal) {
  auto e = qmx_Catch<nex_CmdError>([] { Noise n{static_cast<NoiseEnm>(7)}; });
  EXPECT_EQ(e.Message(), std::string("omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 7  Permissible: ") + kPermissible);
  EXPECT_EQ(e.Line(), 76);
  EXPECT_STREQ(e.File(), kSource);
}

TEST(PrimEnum, OtherEnumerationRefusal) {
  omu_PrimEnum<NoiseEnm, 1> ok(cow_String("USER"));
  omu_PrimEnum<NoiseEnm, 1> same(static_cast<const omu_PrimEnumBase&>(ok));
  EXPECT_EQ(same.GetValue(), NoiseEnm::USER);
  auto e = qmx_Catch<nex_CmdError>([&] { omu_PrimEnum<EmptyEnm, 1> x(static_cast<const omu_PrimEnumBase&>(ok)); });
  EXPECT_EQ(e.Message(), "omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: USER");
  EXPECT_STREQ(e.File(), kSource);
}

TEST(PrimEnum, OutOfOrderTableConvertsBothWays) {
  const std::pair<const char*, NoiseEnm> pairs[] = {{"CORRELATED", NoiseEnm::CORRELATED},
                                                    {"UNCORRELATED", NoiseEnm::UNCORRELATED},
                                                    {"USER", NoiseEnm::USER},
                                                    {"MOVING_NOISE", NoiseEnm::MOVING_NOISE}};
  for (const auto& [text, value] : pairs) {
    EXPECT_EQ(Noise(cow_String(text)).GetValue(), value) << text;
    EXPECT_EQ(Noise(value).GetString(), text);
  }
  EXPECT_STREQ(Noise::Name(2), "USER");
  EXPECT_EQ(Noise::Value(2), NoiseEnm::USER);
  EXPECT_EQ(Noise::Value(3), NoiseEnm::MOVING_NOISE);
  auto m = Noise(NoiseEnm::USER).PermissibleValues();
  EXPECT_EQ(m.Size(), 4u);
  EXPECT_EQ(*m.Find("MOVING_NOISE"), 2u);
  EXPECT_EQ(Noise(NoiseEnm::USER).PermissibleValuesAsString(), kPermissible);
}

TEST(PrimEnum, SetValueFailsWithoutChange) {
  Noise n(NoiseEnm::USER);
  EXPECT_FALSE(n.SetValue(static_cast<NoiseEnm>(9)));
  EXPECT_EQ(n.GetValue(), NoiseEnm::USER);
  EXPECT_EQ(n.GetString(), "USER");
  EXPECT_FALSE(n.SetValue("user"));
  EXPECT_FALSE(n.SetValue(static_cast<const char*>(nullptr)));
  EXPECT_EQ(n.GetString(), "USER");
  EXPECT_TRUE(n.SetValue("MOVING_NOISE"));
  EXPECT_EQ(n.GetValue(), NoiseEnm::MOVING_NOISE);
  EXPECT_TRUE(n.SetValue(NoiseEnm::CORRELATED));
  EXPECT_EQ(n.GetString(), "CORRELATED");
  std::unique_ptr<omu_Primitive> copy(n.Copy());
  EXPECT_EQ(static_cast<Noise*>(copy.get())->GetValue(), NoiseEnm::CORRELATED);
}

TEST(PrimEnum, EmptyTableRefusesEverything) {
  omu_PrimEnum<EmptyEnm, 1> e;
  EXPECT_FALSE(e.SetValue("ANY"));
  EXPECT_FALSE(e.SetValue(static_cast<EmptyEnm>(0)));
  auto ex = qmx_Catch<nex_CmdError>([] { omu_PrimEnum<EmptyEnm, 1> x(cow_String("A")); });
  EXPECT_EQ(ex.Message(), "omu_PrimEnum(const cow_String&) - str not allowed: A  Permissible: ");
}

}  // namespace enum_test
