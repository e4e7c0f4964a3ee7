// Explanations and rules through the C interface.
#include "Handles.h"

#include <analysis/FieldExplanation.h>
#include <analysis/Rules.h>
#include <analysis/Vocabulary.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using namespace testsupport;

ExplanationPointer Explain(const std::string& name) {
  vif_explanation* explanation = nullptr;
  EXPECT_EQ(vif_explain(name.c_str(), &explanation, nullptr), VIF_OK) << name;
  return ExplanationPointer(explanation);
}

TEST(CExplanationTest, SaysWhatIsKnownOfEveryField) {
  for (const vifanalysis::FieldInfo& info : vifanalysis::Fields()) {
    const std::string name(info.name);
    SCOPED_TRACE(name);
    const auto expected = vifanalysis::ExplainField(name);
    ASSERT_TRUE(expected);
    const ExplanationPointer explanation = Explain(name);
    auto field = Sized<vif_explained_field>();
    ASSERT_EQ(vif_explanation_get(explanation.get(), &field), VIF_OK);
    EXPECT_EQ(field.name, expected->name);
    EXPECT_EQ(field.also_means, expected->alsoMeans);
    EXPECT_EQ(field.group, expected->group);
    EXPECT_EQ(field.declares, expected->declares);
    EXPECT_EQ(field.note, expected->note);
    EXPECT_EQ(field.type, expected->type);
    EXPECT_EQ(field.unit, expected->unit);
    EXPECT_EQ(field.first_edition, expected->firstEdition);
    EXPECT_EQ(field.last_edition, expected->lastEdition);
    EXPECT_EQ(field.confidence, vifanalysis::ConfidenceText(expected->confidence));
    EXPECT_EQ(field.unit_is_weak != 0, expected->unitIsWeak);
    EXPECT_EQ(field.seen != 0, expected->seen);
    ASSERT_EQ(field.value_count, expected->values.size());
    ASSERT_EQ(field.spelling_count, expected->spellings.size());
    ASSERT_EQ(field.source_count, expected->sources.size());
    for (std::size_t i = 0; i < field.value_count; ++i) {
      auto value = Sized<vif_explained_value>();
      ASSERT_EQ(vif_explanation_value(explanation.get(), i, &value), VIF_OK);
      EXPECT_EQ(value.value, expected->values[i].value);
      EXPECT_EQ(value.text, expected->values[i].text);
      EXPECT_EQ(value.seen != 0, expected->values[i].seen);
      EXPECT_EQ(value.confidence, vifanalysis::ConfidenceText(expected->values[i].confidence));
    }
    for (std::size_t i = 0; i < field.spelling_count; ++i) {
      auto spelling = Sized<vif_explained_spelling>();
      ASSERT_EQ(vif_explanation_spelling(explanation.get(), i, &spelling), VIF_OK);
      EXPECT_EQ(spelling.name, expected->spellings[i].name);
      EXPECT_EQ(spelling.kind, vifanalysis::NameKindText(expected->spellings[i].kind));
      EXPECT_EQ(spelling.first_edition, expected->spellings[i].first);
      EXPECT_EQ(spelling.last_edition, expected->spellings[i].last);
      EXPECT_EQ(spelling.why, expected->spellings[i].why);
    }
    for (std::size_t i = 0; i < field.source_count; ++i) {
      EXPECT_EQ(vif_explanation_source(explanation.get(), i), expected->sources[i]);
    }
  }
}

TEST(CExplanationTest, SaysWhyANameMeansAField) {
  const auto askedOf = [](const char* name) {
    const ExplanationPointer explanation = Explain(name);
    auto field = Sized<vif_explained_field>();
    EXPECT_EQ(vif_explanation_get(explanation.get(), &field), VIF_OK);
    return std::string(field.asked);
  };
  EXPECT_EQ(askedOf("PD_Port_Type"), "");
  EXPECT_EQ(askedOf("pd_port_TYPE"), vifanalysis::NameKindText(vifanalysis::NameKind::LetterCase));
}

TEST(CExplanationTest, AnUnknownNameIsRefusedWithTheNearestOne) {
  CError error;
  vif_explanation* explanation = nullptr;
  EXPECT_EQ(vif_explain("Src_PDO_Voltege", &explanation, error.Receive()), VIF_ERROR_NOT_FOUND);
  EXPECT_EQ(error.Message(), "there is no field 'Src_PDO_Voltege'; did you mean 'Src_PDO_Voltage'?");
  EXPECT_EQ(explanation, nullptr);
  EXPECT_EQ(vif_explain("?", &explanation, error.Receive()), VIF_ERROR_NOT_FOUND);
  EXPECT_EQ(error.Message(), "there is no field '?'");
}

TEST(CExplanationTest, ArgumentsMustNotBeNull) {
  vif_explanation* none = nullptr;
  EXPECT_EQ(vif_explain(nullptr, &none, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_explain("PID", nullptr, nullptr), VIF_ERROR_ARGUMENT);
  const ExplanationPointer explanation = Explain("PID");
  auto value = Sized<vif_explained_value>();
  auto spelling = Sized<vif_explained_spelling>();
  auto field = Sized<vif_explained_field>();
  EXPECT_EQ(vif_explanation_get(nullptr, &field), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_explanation_get(explanation.get(), nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_explanation_value(nullptr, 0, &value), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_explanation_value(explanation.get(), 1000, &value), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_explanation_spelling(nullptr, 0, &spelling), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_explanation_spelling(explanation.get(), 1000, &spelling), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_explanation_source(nullptr, 0), nullptr);
  EXPECT_EQ(vif_explanation_source(explanation.get(), 1000), nullptr);
  vif_explanation_free(nullptr);
}

TEST(CRulesTest, AreThoseOfTheCheck) {
  ASSERT_EQ(vif_rule_count(), vifanalysis::Rules().size());
  for (std::size_t i = 0; i < vif_rule_count(); ++i) {
    const vifanalysis::RuleInfo& expected = vifanalysis::Rules()[i];
    auto rule = Sized<vif_rule>();
    ASSERT_EQ(vif_rule_get(i, &rule), VIF_OK);
    EXPECT_STREQ(rule.code, expected.code);
    EXPECT_STREQ(rule.what, expected.what);
    EXPECT_STREQ(rule.why, expected.why);
    EXPECT_EQ(rule.confidence, vifanalysis::ConfidenceText(expected.confidence));
    EXPECT_EQ(rule.severity, static_cast<int>(expected.severity));
    EXPECT_EQ(rule.first_major, expected.first.major);
    EXPECT_EQ(rule.first_minor, expected.first.minor);
    auto found = Sized<vif_rule>();
    EXPECT_EQ(vif_find_rule(expected.code, &found, nullptr), VIF_OK);
    EXPECT_EQ(found.code, rule.code);
  }
}

TEST(CRulesTest, AnUnknownCodeIsRefusedWithTheNearestOne) {
  CError error;
  auto rule = Sized<vif_rule>();
  EXPECT_EQ(vif_find_rule("declared-twise", &rule, error.Receive()), VIF_ERROR_NOT_FOUND);
  EXPECT_EQ(error.Message(), "there is no rule 'declared-twise'; did you mean 'declared-twice'?");
}

TEST(CRulesTest, ArgumentsMustNotBeNull) {
  auto rule = Sized<vif_rule>();
  EXPECT_EQ(vif_find_rule(nullptr, &rule, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_find_rule("not-valid", nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_rule_get(vif_rule_count(), &rule), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_rule_get(0, nullptr), VIF_ERROR_ARGUMENT);
}

}  // namespace
