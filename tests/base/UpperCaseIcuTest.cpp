// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#ifdef KOB_HAVE_ICU
#include <unicode/uchar.h>
#include <unicode/ustring.h>
#endif

namespace kob {
namespace {

#ifdef KOB_HAVE_ICU

/// The version of Unicode that the component's table was made from. Letters and capitals that came later are
/// unknown to it and stay as they are, whatever a newer library says.
constexpr int tableVersion = 15;

/// The major version of Unicode in which a character appeared; 0 when the library does not know it.
int age(UChar32 character) {
  UVersionInfo version;
  u_charAge(character, version);
  return version[0];
}

/// What the rule asks for, from the library's own data: the one-letter capital, unless the full one is
/// longer.
char16_t expected(char16_t unit) {
  if (U16_IS_SURROGATE(unit) || age(unit) > tableVersion) {
    return unit;
  }
  UChar full[8];
  UErrorCode status = U_ZERO_ERROR;
  if (u_strToUpper(full, 8, &unit, 1, "", &status) != 1) {
    return unit;
  }
  const UChar32 capital = u_toupper(unit);
  return capital > 0xFFFF || age(capital) > tableVersion ? unit : static_cast<char16_t>(capital);
}

TEST(UpperCaseBesideIcu, AgreesOnEveryCodeUnitThatBothKnow) {
  UVersionInfo version;
  u_getUnicodeVersion(version);
  int compared = 0;
  int raised = 0;
  for (std::uint32_t i = 0; i <= 0xFFFF; ++i) {
    const auto unit = static_cast<char16_t>(i);
    if (version[0] < tableVersion && age(unit) == 0) {
      continue;
    }
    ++compared;
    raised += upperUnit(unit) != unit ? 1 : 0;
    EXPECT_EQ(upperUnit(unit), expected(unit)) << "U+" << std::hex << i;
  }
  RecordProperty("compared", compared);
  RecordProperty("raised", raised);
  EXPECT_GT(raised, 1000);
}

#else

TEST(UpperCaseBesideIcu, AgreesOnEveryCodeUnitThatBothKnow) {
  GTEST_SKIP() << "built without ICU";
}

#endif

}  // namespace
}  // namespace kob
