// What `vif check` finds in text files.
#include "FindingTexts.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testsupport::FindingTexts;
using testsupport::MessagesOf;

json Check(std::string_view text) { return testsupport::FindingsIn("a.txt", text); }

std::vector<std::string> Found(std::string_view text) { return FindingTexts(Check(text)); }

std::vector<std::string> Messages(std::string_view text) { return MessagesOf(Check(text)); }

struct LostLine {
  std::string line;
  std::string reason;
};

class CheckLine : public testing::TestWithParam<LostLine> {};

TEST_P(CheckLine, SaysWhyItYieldsNoField) {
  const json findings = Check(GetParam().line + '\n');
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 error not-a-declaration"));
  EXPECT_THAT(MessagesOf(findings), ElementsAre(HasSubstr(" yields no field: " + GetParam().reason)));
}

using namespace std::literals;

INSTANTIATE_TEST_SUITE_P(
    Names, CheckLine,
    testing::Values(LostLine{"oops", "there is no colon; a declaration is written \"Name: value\""},
                    LostLine{"PID = 5",
                             "there is no colon; a declaration is written \"Name: value\", without an equals sign"},
                    LostLine{"\v", "there is no colon"}, LostLine{": 5", "there is no name before the colon"},
                    LostLine{"$: \"x\"", "there is no name before the colon"},
                    LostLine{"P-D: 5", "'-' is not allowed in a name"},
                    LostLine{"P\u00EFD: 5", "'\u00EF' is not allowed in a name"},
                    LostLine{"P\xFF: 5", "'\uFFFD' is not allowed"}, LostLine{"P D: 5", "the name contains a blank"},
                    LostLine{"P$D: 5", "'$' is allowed only at the start of a name"},
                    LostLine{"$$TID: \"x\"", "'$' is allowed only at the start of a name"}));

INSTANTIATE_TEST_SUITE_P(
    NumericValues, CheckLine,
    testing::Values(
        LostLine{"PID:", "there is no value after the colon"},
        LostLine{"PID: ; 5", "there is no value after the colon"}, LostLine{"PID: -5", "the number '-5' has a sign"},
        LostLine{"PID: +5", "the number '+5' has a sign"}, LostLine{"PID: 1.5", "the number '1.5' has a decimal point"},
        LostLine{"PID: 1,5", "the number '1,5' has a decimal point"},
        LostLine{"PID: 5 V", "' V' follows the number '5'"}, LostLine{"PID: 5\f", "'\\x0c' follows the number '5'"},
        LostLine{"PID: 18d1", "the hexadecimal number '18d1' does not begin with '0x'"},
        LostLine{"PID: 0x", "no hexadecimal digit follows '0x'"}, LostLine{"PID: 0x1G", "'G' follows the number '0x1'"},
        LostLine{"PID: True", "a text file has YES or NO instead of 'True'"},
        LostLine{"PID: Yes!", "'!' follows 'Yes'"},
        LostLine{"PID: None", "'None' is neither a number (decimal, or hexadecimal with 0x) nor YES or NO"},
        LostLine{"PID: Acme",
                 "'Acme' is neither a number (decimal, or hexadecimal with 0x) nor YES or NO; text values "
                 "need $Name: \"value\""},
        LostLine{"PID: \"5\"", "a text in double quotes needs a '$' before the name: $Name: \"value\""},
        LostLine{"PID: \0"s + "5", "the line ends at its NUL character, and there is no value"}));

INSTANTIATE_TEST_SUITE_P(
    QuotedValues, CheckLine,
    testing::Values(LostLine{"$TID:", "there is no value after the colon"},
                    LostLine{"$TID: 5", "the value '5' of a name with '$' does not begin with a double quote"},
                    LostLine{"$TID: \"5", "the closing double quote is missing"},
                    LostLine{"$TID: \"5 ; comment", "the closing double quote is missing"},
                    LostLine{"$TID: \"5\" 6", "' 6' follows the closing double quote"},
                    LostLine{"$TID: \"5\"; comment", "a blank is missing between the closing double quote and the ';'"},
                    LostLine{"$TID: \"5\";", "a blank is missing between the closing double quote and the ';'"},
                    LostLine{"$TID: \"5\r6\"", "there is a line break inside the double quotes"}));

TEST(CheckLine, TheNameIsInTheMessage) {
  EXPECT_THAT(Messages("Src_PDO_Voltage1: -5\n"),
              ElementsAre("'Src_PDO_Voltage1' yields no field: the number '-5' has a sign"));
}

TEST(CheckByteOrderMark, BeforeADeclarationIsAnError) {
  const json findings = Check("\xEF\xBB\xBFPID: 5\n");
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 error not-a-declaration"));
  EXPECT_THAT(MessagesOf(findings), ElementsAre(HasSubstr("there is a byte order mark before the name")));
}

TEST(CheckByteOrderMark, BeforeACommentIsAWarning) {
  EXPECT_THAT(Found("\xEF\xBB\xBF; comment\nPID: 5\n"), ElementsAre("1 warning byte-order-mark"));
}

TEST(CheckText, ReadsOnAfterALineThatYieldsNoField) {
  EXPECT_THAT(Found("oops\nPID: 1\noops\n"), ElementsAre("1 error not-a-declaration", "3 error not-a-declaration"));
}

TEST(CheckText, AReadErrorIsAnError) {
#ifdef __linux__
  const testsupport::TempDir dir;
  std::filesystem::create_symlink("/proc/self/mem", dir.Path() / "a.txt");  // regular, but its first byte is unreadable
  const json findings = testsupport::CheckJson({(dir.Path() / "a.txt").string()})["files"][0]["findings"];
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 error read-failed"));
#else
  GTEST_SKIP() << "needs a file that can be opened but not read";
#endif
}

TEST(CheckName, ComesWithASuggestion) {
  EXPECT_THAT(Found("Num_Scr_PDOs: 5\n"), ElementsAre("1 warning unknown-name"));
  EXPECT_THAT(Messages("Num_Scr_PDOs: 5\n"), ElementsAre("unknown name 'Num_Scr_PDOs'; did you mean 'Num_Src_PDOs'?"));
}

TEST(CheckName, TheSuggestionHasTheWrittenIndexes) {
  EXPECT_THAT(Messages("Src_PDO_Voltge2: 5\n"), ElementsAre(HasSubstr("; did you mean 'Src_PDO_Voltage2'?")));
  EXPECT_THAT(Messages("svid1_num_modes_min_SOP: 5\n"),
              ElementsAre(HasSubstr("; did you mean 'SVID1_Num_Modes_Min_SOP'?")));
  EXPECT_THAT(Messages("SVID1_Mode12_Entr_SOP: 5\n"),
              ElementsAre(HasSubstr("; did you mean 'SVID1_Mode12_Enter_SOP'?")));
}

TEST(CheckName, LetterCaseDoesNotCount) {
  EXPECT_THAT(Messages("no_usb_suspend_may_be_set: 5\n"), ElementsAre(HasSubstr("mean 'No_USB_Suspend_May_Be_Set'?")));
}

TEST(CheckName, MayHaveTwoSuggestions) {
  EXPECT_THAT(Messages("Src_PDO_Mix_Voltage3: 5\n"),
              ElementsAre(HasSubstr("; did you mean 'Src_PDO_Max_Voltage3' or 'Src_PDO_Min_Voltage3'?")));
}

TEST(CheckName, ATextKeepsItsMark) {
  EXPECT_THAT(Messages("$Vendor_Nam: \"x\"\n"), ElementsAre(HasSubstr("; did you mean '$Vendor_Name'?")));
}

TEST(CheckName, HasNoSuggestionWhereNoneIsSimilar) {
  EXPECT_THAT(Messages("Colour: 5\n"), ElementsAre("unknown name 'Colour'"));
  EXPECT_THAT(Messages(std::string(50'000, 'P') + ": 5\n"), ElementsAre(testing::Not(HasSubstr("did you mean"))));
}

// Fields that a later edition may add. Those of known editions are notes at most.
TEST(CheckName, ThatMayBeOfALaterEditionIsNotAMisspelling) {
  for (const char* name : {"Product_Name", "Version_Info", "SPR_Supported_As_Src", "USB4_CL3_State_Supported",
                           "USB4_Asymmetric_4_Rx_Support", "PD_Power_As_Source_Managed"}) {
    EXPECT_THAT(Messages(std::string(name) + ": 5\n"), ElementsAre("unknown name '" + std::string(name) + "'"));
  }
}

TEST(CheckName, OfAKnownEditionIsNoWarning) {
  for (const char* name : {"Externally_Powered", "FR_Swap_Reqd_Type_C_Current", "PD_Power_as_Sink",
                           "Type_C_Source_Vconn", "Has_Invariant_PDOs", "DP_Modes_Count", "DP_mode1_Port_Cap",
                           "DP_mode2_Ufp_D_A_Supported", "DPAM_Version", "SOP_DP_Capability", "SOPP_DPAM_Version"}) {
    EXPECT_THAT(Found(std::string(name) + ": 5\n"), testing::Each(testing::StartsWith("1 note "))) << name;
  }
}

TEST(CheckDuplicate, NamesTheFirstLine) {
  const json findings = Check("Src_PDO_Voltage1: 5\nSrc_PDO_Max_Current1: 5\nSrc_PDO_Voltage1: 6\n");
  EXPECT_THAT(FindingTexts(findings), ElementsAre("3 error declared-twice"));
  EXPECT_EQ(findings[0]["element"], "Src_PDO_Voltage");
  EXPECT_EQ(findings[0]["message"],
            "'Src_PDO_Voltage' (Component 1 \u00B7 SrcPdo 1) is already declared on line 1, so GetUniqueField "
            "fails for it");
}

TEST(CheckDuplicate, EveryFurtherOneIsFound) {
  EXPECT_THAT(Found("PID: 1\nPID: 2\nPID: 3\n"), ElementsAre("2 error declared-twice", "3 error declared-twice"));
}

TEST(CheckDuplicate, AnIndexMayBeWrittenInTwoWays) {
  EXPECT_THAT(Found("Src_PDO_Voltage1: 5\nSrc_PDO_Voltage01: 5\n"), ElementsAre("2 error declared-twice"));
}

TEST(CheckDuplicate, TextsAndUnknownNamesCountToo) {
  EXPECT_THAT(Found("$TID: \"1\"\n$TID: \"1\"\n"), ElementsAre("2 error declared-twice"));
  EXPECT_THAT(Found("My_Own: 1\nMy_Own: 1\n"),
              ElementsAre("1 warning unknown-name", "2 warning unknown-name", "2 error declared-twice"));
}

TEST(CheckDuplicate, TheSameNameInAnotherGroupIsCorrect) {
  EXPECT_THAT(Found("Src_PDO_Voltage1: 5\nSrc_PDO_Voltage2: 5\n"), IsEmpty());
}

struct Unreadable {
  std::string value;
  std::string reason;
};

class CheckNumber : public testing::TestWithParam<Unreadable> {};

TEST_P(CheckNumber, SaysWhyThereIsNone) {
  const json findings = Check("XID: " + GetParam().value + '\n');
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 error no-number"));
  EXPECT_EQ(findings[0]["message"],
            "'XID' (Component 1) has no number: its value '" + GetParam().value + "' " + GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(Values, CheckNumber,
                         testing::Values(Unreadable{"18446744073709551616", "has more than 64 bits"},
                                         Unreadable{"0x10000000000000000", "has more than 64 bits"},
                                         Unreadable{"18446744073709551615", "is reserved to mean no number"},
                                         Unreadable{"0x0FFFFFFFFffffffff", "is reserved to mean no number"}));

TEST(CheckNumber, ValidNumbersAreCorrect) {
  EXPECT_THAT(Found("XID: 18446744073709551614\nPID: 0x0\nXID_SOP: Yes\nPID_SOP: 00000000000000000000000007\n"),
              IsEmpty());
}

struct CountCase {
  std::string text;
  std::string message;
};

class CheckCount : public testing::TestWithParam<CountCase> {};

TEST_P(CheckCount, ThatDiffersFromTheNumberOfGroupsIsAnError) {
  const json findings = Check(GetParam().text);
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 error count-mismatch"));
  EXPECT_EQ(findings[0]["message"], GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    EveryCount, CheckCount,
    testing::Values(CountCase{"Num_Src_PDOs: 3\nSrc_PDO_Voltage1: 5\nSrc_PDO_Voltage2: 5\n",
                              "'Num_Src_PDOs' is 3, but Component 1 has 2 SrcPdo groups"},
                    CountCase{"Num_Src_PDOs: 1\n", "'Num_Src_PDOs' is 1, but Component 1 has 0 SrcPdo groups"},
                    CountCase{"Num_Snk_PDOs: 0\nSnk_PDO_Voltage1: 5\n",
                              "'Num_Snk_PDOs' is 0, but Component 1 has 1 SnkPdo group"},
                    CountCase{"USB4_Num_PCIe_Endpoints0: 2\nUSB4_PCIe_Endpoint0_Vendor_ID1: 5\n",
                              "'USB4_Num_PCIe_Endpoints' is 2, but Product 0 \u00B7 Router 0 has 1 RouterPcie group"}));

class CheckRange : public testing::TestWithParam<CountCase> {};

TEST_P(CheckRange, OutsideOfWhichTheGroupsAreIsAWarning) {
  const json findings = Check(GetParam().text);
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 warning count-out-of-range"));
  EXPECT_EQ(findings[0]["message"], GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    EveryRange, CheckRange,
    testing::Values(
        CountCase{"Num_SVIDs_Min_SOP: 2\nNum_SVIDs_Max_SOP: 3\nSVID1_SOP: 5\n",
                  "'Num_SVIDs_Min_SOP' is 2, but Component 1 has 1 SopSvid group"},
        CountCase{"Num_SVIDs_Max_SOP: 1\nNum_SVIDs_Min_SOP: 0\nSVID1_SOP: 5\nSVID2_SOP: 5\n",
                  "'Num_SVIDs_Max_SOP' is 1, but Component 1 has 2 SopSvid groups"},
        CountCase{"Cable_Num_SVIDs_Min: 1\nCable_Num_SVIDs_Max: 1\n",
                  "'Cable_Num_SVIDs_Min' is 1, but Component 1 has 0 CableSvid groups"},
        CountCase{"Cable_Num_SVIDs_Max: 0\nSVID1: 5\n",
                  "'Cable_Num_SVIDs_Max' is 0, but Component 1 has 1 CableSvid group"},
        CountCase{"SVID1_Num_Modes_Min_SOP: 1\n",
                  "'SVID_Num_Modes_Min_SOP' is 1, but Component 1 \u00B7 SopSvid 1 has 0 SopSvidMode groups"},
        CountCase{"SVID1_Num_Modes_Max: 0\nSVID1_Mode1_Enter: YES\n",
                  "'SVID_Num_Modes_Max' is 0, but Component 1 \u00B7 CableSvid 1 has 1 CableSvidMode group"}));

TEST(CheckRange, AMinimumAboveItsMaximumIsAnError) {
  const json findings = Check("Num_SVIDs_Min_SOP: 2\nNum_SVIDs_Max_SOP: 1\nSVID1_SOP: 5\n");
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 error count-mismatch"));
  EXPECT_EQ(findings[0]["message"], "'Num_SVIDs_Min_SOP' is 2, but 'Num_SVIDs_Max_SOP' is 1");
}

TEST(CheckRange, GroupsWithinItAreCorrect) {
  EXPECT_THAT(Found("Num_SVIDs_Min_SOP: 1\nNum_SVIDs_Max_SOP: 3\nSVID1_SOP: 5\nSVID2_SOP: 5\n"), IsEmpty());
}

TEST(CheckCount, ACountWithoutANumberIsNotCompared) {
  EXPECT_THAT(Found("Num_Src_PDOs: 18446744073709551616\n"), ElementsAre("1 error no-number"));
}

TEST(CheckCount, GroupsWithoutACountAreCorrect) { EXPECT_THAT(Found("Src_PDO_Voltage1: 5\n"), IsEmpty()); }

struct NumberingCase {
  std::string text;
  std::string message;
};

class CheckNumbering : public testing::TestWithParam<NumberingCase> {};

TEST_P(CheckNumbering, GapIsAWarning) {
  const json findings = Check(GetParam().text);
  EXPECT_THAT(FindingTexts(findings), ElementsAre("2 warning numbering-gap"));
  EXPECT_EQ(findings[0]["message"], GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    EveryGap, CheckNumbering,
    testing::Values(
        NumberingCase{"Src_PDO_Voltage1: 5\nSrc_PDO_Voltage3: 5\n",
                      "'Src_PDO_Voltage' (Component 1 \u00B7 SrcPdo 3) is there, but SrcPdo 2 is missing"},
        NumberingCase{"PID: 5\nSnk_PDO_Voltage3: 5\nSnk_PDO_Op_Current3: 5\n",
                      "'Snk_PDO_Voltage' (Component 1 \u00B7 SnkPdo 3) is there, but SnkPdo 1 and 2 are missing"},
        NumberingCase{"SVID1_SOP: 5\nSVID1_Mode18446744073709551614_Enter_SOP: 5\n",
                      "'SVID_Mode_Enter_SOP' (Component 1 \u00B7 SopSvid 1 \u00B7 SopSvidMode 18446744073709551614) is "
                      "there, but SopSvidMode 1 to 18446744073709551613 are missing"},
        NumberingCase{"PID: 5\nUSB4_Router_ID1: 5\n",
                      "'USB4_Router_ID' (Product 0 \u00B7 Router 1) is there, but Router 0 is missing"},
        NumberingCase{"Src_PDO_Voltage1: 5\nSrc_PDO_Voltage0: 5\n",
                      "'Src_PDO_Voltage' (Component 1 \u00B7 SrcPdo 0): groups of this kind are numbered from 1"}));

TEST(CheckNumbering, WithoutGapsIsCorrect) {
  EXPECT_THAT(Found("Src_PDO_Voltage2: 5\nSrc_PDO_Voltage1: 5\nUSB4_Router_ID0: 5\nUSB4_Router_ID1: 5\n"
                    "USB4_PCIe_Endpoint0_Vendor_ID1: 5\n"),
              IsEmpty());
}

TEST(CheckIndex, ANameWithoutItsIndexIsAWarning) {
  const json findings = Check("Src_PDO_Voltage: 5\n");
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 warning no-index"));
  EXPECT_EQ(findings[0]["message"],
            "'Src_PDO_Voltage' (Component 1 \u00B7 SrcPdo ?): the name has no valid SrcPdo number");
}

TEST(CheckIndex, OfMoreThan64BitsIsNotValid) {
  EXPECT_THAT(Found("Src_PDO_Voltage18446744073709551616: 5\n"), ElementsAre("1 warning no-index"));
}

TEST(CheckIndex, TheInnerOneMayBeMissingAlone) {
  EXPECT_THAT(Messages("SVID1_Mode_Enter_SOP: 5\n"), ElementsAre(HasSubstr("no valid SopSvidMode number")));
}

TEST(CheckTextInGroup, ATextWithTheNameOfANumberedGroupIsAWarning) {
  const json findings = Check("$Snk_PDO_Voltage2: \"100\"\n");
  EXPECT_THAT(FindingTexts(findings), ElementsAre("1 warning text-in-group"));
  EXPECT_EQ(findings[0]["message"],
            "'$Snk_PDO_Voltage2' is a text and so in no group; without '$' and quotes it would be in Component \u00B7 "
            "SnkPdo");
}

TEST(CheckTextInGroup, OtherTextsAreCorrect) { EXPECT_THAT(Found("$Port_Label: \"0\"\n$TID: \"5\"\n"), IsEmpty()); }

}  // namespace
