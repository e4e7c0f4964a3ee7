// A single field, and the tables of fields and locations.
#include "BaseUtilities/Exceptions.h"
#include "Outcome.h"
#include "Samples.h"
#include "VIFFieldDefs.h"
#include "VIFLocations.h"
#include "support/FieldText.h"
#include "support/ForEveryFailingAllocation.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <utility>

namespace {

using testsupport::COutcome;
using testsupport::FieldText;
using testsupport::ForEveryFailingAllocation;
using testsupport::kAnywhere;
using testsupport::kLongName;
using testsupport::kLongValue;
using testsupport::kUnused;

constexpr VifIndex kComponent = {eVifLocComponent, 1};
constexpr const char* kLongDescription = "a description that needs memory of its own";

CVIFField Sample() { return CVIFField(false, kLongName, kLongValue, kLongDescription, kComponent, kUnused, kUnused); }

/// The texts that constructors take; the fields get copies.
struct Texts {
  std::string name = kLongName;
  std::string value = kLongValue;
  std::string description = kLongDescription;
};

/// Constructs a field with memory running out; it must have the expected text, or not exist.
template <typename Make>
void ExpectFieldSurvivesFailures(const std::string& expected, const Make& make) {
  ForEveryFailingAllocation(make, [&](const std::optional<CVIFField>& field) {
    if (field) {
      EXPECT_EQ(FieldText(*field), expected);
    }
  });
}

TEST(FieldMemory, ConstructEmpty) {
  ExpectFieldSurvivesFailures("=", [] { return CVIFField(); });
}

TEST(FieldMemory, ConstructWithoutADescription) {
  const Texts texts;
  const std::string expected = FieldText(CVIFField(false, kLongName, kLongValue, kLongValue, kAnywhere));
  ExpectFieldSurvivesFailures(expected, [&] { return CVIFField(false, texts.name, texts.value, kAnywhere); });
  ExpectFieldSurvivesFailures(expected,
                              [&] { return CVIFField(false, texts.name, texts.value, kUnused, kUnused, kUnused); });
}

TEST(FieldMemory, ConstructWithADescription) {
  const Texts texts;
  ExpectFieldSurvivesFailures(FieldText(Sample()), [&] {
    return CVIFField(false, texts.name, texts.value, texts.description, {kComponent, kUnused, kUnused});
  });
  ExpectFieldSurvivesFailures(FieldText(Sample()), [&] {
    return CVIFField(false, texts.name, texts.value, texts.description, kComponent, kUnused, kUnused);
  });
}

TEST(FieldMemory, CopyConstruct) {
  const CVIFField source = Sample();
  const std::string expected = FieldText(source);
  ForEveryFailingAllocation([&] { return CVIFField(source); },
                            [&](const std::optional<CVIFField>& copy) {
                              if (copy) {
                                EXPECT_EQ(FieldText(*copy), expected);
                              }
                              EXPECT_EQ(FieldText(source), expected);
                            });
}

TEST(FieldMemory, CopyAssign) {
  const CVIFField source = Sample();
  const std::string expected = FieldText(source);
  const auto begin = [] {
    return CVIFField(true, "another name that needs memory of its own, too", "17", kUnused, kUnused, kUnused);
  };
  ForEveryFailingAllocation(
      begin, [&](CVIFField& field) { field = source; },
      [&](CVIFField& field, bool isDone) {
        EXPECT_EQ(FieldText(field), isDone ? expected : FieldText(begin()));
        field = source;
        EXPECT_EQ(FieldText(field), expected);
      });
}

/// Two fields, so that one can be moved.
using Pair = std::array<CVIFField, 2>;

TEST(FieldMemory, MoveConstructAllocatesNothing) {
  CVIFField source = Sample();
  ForEveryFailingAllocation([&] { return CVIFField(std::move(source)); },
                            [&](std::optional<CVIFField> moved) {
                              ASSERT_TRUE(moved);
                              EXPECT_EQ(FieldText(*moved), FieldText(Sample()));
                              source = std::move(*moved);
                            });
}

TEST(FieldMemory, MoveAssignAllocatesNothing) {
  ForEveryFailingAllocation(
      [] {
        return Pair{Sample(), CVIFField()};
      },
      [](Pair& fields) { fields[1] = std::move(fields[0]); },
      [](const Pair& fields, bool isDone) {
        EXPECT_TRUE(isDone);
        EXPECT_EQ(FieldText(fields[1]), FieldText(Sample()));
      });
}

TEST(FieldMemory, MakeOutputString) {
  const CVIFField field = Sample();
  const std::string expected = std::string(kLongName).append("=\"").append(kLongValue).append("\"");
  ForEveryFailingAllocation([&] { return field.MakeOutputString(); },
                            [&](const std::optional<CSafeString>& text) {
                              if (text) {
                                EXPECT_EQ(text->get(), expected);
                              }
                            });
}

TEST(FieldMemory, GetULongNumericValueOfAFieldThatIsNotNumeric) {
  const CVIFField field = Sample();
  ForEveryFailingAllocation([&] { return COutcome([&] { return field.GetULongNumericValue(); }); },
                            [](const auto& outcome) {
                              if (!outcome) return;
                              try {
                                ADD_FAILURE() << outcome->Get();
                              } catch (const CZoRunTimeException& error) {
                                EXPECT_EQ(error.what(),
                                          std::string("Field '").append(kLongName).append("' is not Numeric."));
                              }
                            });
}

TEST(FieldMemory, MatchAPlainNameAllocatesNothing) {
  const CVIFField field = Sample();
  ForEveryFailingAllocation(
      [&] {
        return field.Match(kLongName, {kComponent, kUnused, kUnused});
      },
      [](const std::optional<bool>& matches) {
        ASSERT_TRUE(matches);
        EXPECT_TRUE(*matches);
      });
}

TEST(TableMemory, GetVifLocInfoAllocatesNothing) {
  ForEveryFailingAllocation([] { return &GetVifLocInfo(eVifLocSrcPdo); },
                            [](const auto& info) {
                              ASSERT_TRUE(info);
                              EXPECT_STREQ((*info)->name, "SrcPdo");
                            });
}

TEST(TableMemory, GetVifFieldDefsAllocatesNothing) {
  ForEveryFailingAllocation([] { return VifFieldDefs::GetVifFieldDefs().size(); },
                            [](const auto& size) { EXPECT_EQ(size, 271U); });
}

TEST(TableMemory, CopyOfTheDefinitions) {
  ForEveryFailingAllocation([] { return VifFieldDefs::GetVifFieldDefs(); },
                            [](const auto& definitions) {
                              if (definitions) {
                                EXPECT_EQ(definitions->size(), 271U);
                              }
                            });
}

}  // namespace
