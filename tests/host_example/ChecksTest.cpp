// Findings of the checks in the reference host's suite.
#include "ReferenceHost.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::CReferenceHost;
using testsupport::kChecksFailed;
using testsupport::kNothingFailed;

/// Runs the host on a VIF.
class Checks : public testing::Test {
 protected:
  void Text(const std::string& content) { Run("a.txt", content); }
  void Xml(const std::string& content) { Run("a.xml", testsupport::XmlVif(content)); }

  /// The messages of the lines with that status, such as "FAIL".
  std::vector<std::string> LinesWith(const std::string& word) const {
    std::vector<std::string> found;
    for (const std::string& line : m_log) {
      if (line.substr(11, word.size() + 1) == word + ' ') found.push_back(line.substr(17));
    }
    return found;
  }

  std::vector<std::string> Failures() const { return LinesWith("FAIL"); }

 private:
  void Run(const std::string& name, const std::string& content) {
    const CReferenceHost host;
    const int status = host.Run({"--vif", host.Write(name, content)}).status;
    m_log = host.Log();
    EXPECT_EQ(status, Failures().empty() ? kNothingFailed : kChecksFailed);
  }

  std::vector<std::string> m_log;
};

TEST_F(Checks, DoNotApplyToAnEmptyVif) {
  Text("");
  EXPECT_THAT(LinesWith("N/A"), testing::SizeIs(7));
  EXPECT_THAT(LinesWith("PASS"), IsEmpty());
}

TEST_F(Checks, FixedSourcePdoNeedsVoltageAndCurrent) {
  Text("Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 0\n");
  EXPECT_THAT(Failures(), ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Voltage is missing",
                                      "Source PDOs: Component 1, source PDO 1: Src_PDO_Max_Current is missing"));
}

TEST_F(Checks, BatterySourcePdoNeedsVoltagesAndPower) {
  Text("Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 1\n");
  EXPECT_THAT(Failures(), ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Min_Voltage is missing",
                                      "Source PDOs: Component 1, source PDO 1: Src_PDO_Max_Voltage is missing",
                                      "Source PDOs: Component 1, source PDO 1: Src_PDO_Max_Power is missing"));
}

TEST_F(Checks, VariableSinkPdoNeedsVoltagesAndCurrent) {
  Text("Num_Snk_PDOs: 1\nSnk_PDO_Supply_Type1: 2\n");
  EXPECT_THAT(Failures(), ElementsAre("Sink PDOs: Component 1, sink PDO 1: Snk_PDO_Min_Voltage is missing",
                                      "Sink PDOs: Component 1, sink PDO 1: Snk_PDO_Max_Voltage is missing",
                                      "Sink PDOs: Component 1, sink PDO 1: Snk_PDO_Op_Current is missing"));
}

TEST_F(Checks, AugmentedPdoNeedsItsType) {
  Text("Num_Snk_PDOs: 1\nSnk_PDO_Supply_Type1: 3\n");
  EXPECT_THAT(Failures(), ElementsAre("Sink PDOs: Component 1, sink PDO 1: Snk_PDO_APDO_Type is missing"));
}

TEST_F(Checks, PdoNeedsASupplyType) {
  Text("Num_Src_PDOs: 1\nSrc_PDO_Voltage1: 100\n");
  EXPECT_THAT(Failures(), ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Supply_Type is missing"));
}

TEST_F(Checks, SupplyTypeAboveThreeIsInvalid) {
  Text("Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 4\n");
  EXPECT_THAT(Failures(),
              ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Supply_Type is 4 and not from 0 to 3"));
}

TEST_F(Checks, LargestNumbersOfAFixedPdoPass) {
  Text("Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 1023\nSrc_PDO_Max_Current1: 1023\n");
  EXPECT_THAT(Failures(), IsEmpty());
}

TEST_F(Checks, NumbersBeyondTheBitsOfAFixedPdoFail) {
  Text("Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 1024\nSrc_PDO_Max_Current1: 1024\n");
  EXPECT_THAT(
      Failures(),
      ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Voltage is 1024 and not from 1 to 1023",
                  "Source PDOs: Component 1, source PDO 1: Src_PDO_Max_Current is 1024 and not from 0 to 1023"));
}

TEST_F(Checks, LargestNumbersOfAProgrammablePdoPass) {
  Text(
      "Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 3\nSrc_PDO_APDO_Type1: 0\n"
      "Src_PDO_Min_Voltage1: 255\nSrc_PDO_Max_Voltage1: 255\nSrc_PDO_Max_Current1: 127\n");
  EXPECT_THAT(Failures(), IsEmpty());
}

TEST_F(Checks, NumbersBeyondTheBitsOfAProgrammablePdoFail) {
  Text(
      "Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 3\nSrc_PDO_APDO_Type1: 0\n"
      "Src_PDO_Min_Voltage1: 33\nSrc_PDO_Max_Voltage1: 256\nSrc_PDO_Max_Current1: 128\n");
  EXPECT_THAT(Failures(),
              ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Max_Voltage is 256 and not from 1 to 255",
                          "Source PDOs: Component 1, source PDO 1: Src_PDO_Max_Current is 128 and not from 0 to 127"));
}

TEST_F(Checks, VoltageOfZeroFails) {
  Text("Num_Snk_PDOs: 1\nSnk_PDO_Supply_Type1: 0\nSnk_PDO_Voltage1: 0\nSnk_PDO_Op_Current1: 0\n");
  EXPECT_THAT(Failures(),
              ElementsAre("Sink PDOs: Component 1, sink PDO 1: Snk_PDO_Voltage is 0 and not from 1 to 1023"));
}

TEST_F(Checks, LowestVoltageAboveTheHighestFails) {
  Text(
      "Num_Snk_PDOs: 1\nSnk_PDO_Supply_Type1: 1\n"
      "Snk_PDO_Min_Voltage1: 300\nSnk_PDO_Max_Voltage1: 200\nSnk_PDO_Op_Power1: 1\n");
  EXPECT_THAT(Failures(), ElementsAre("Sink PDOs: Component 1, sink PDO 1: Snk_PDO_Min_Voltage is 300, but "
                                      "Snk_PDO_Max_Voltage is 200"));
}

TEST_F(Checks, NumberOfMoreThan64BitsIsInvalid) {
  Text(
      "Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 99999999999999999999\n"
      "Src_PDO_Max_Current1: 1\n");
  EXPECT_THAT(Failures(), ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Voltage is no number"));
}

TEST_F(Checks, FieldDeclaredTwiceFails) {
  Text(
      "Num_Src_PDOs: 1\nSrc_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nSrc_PDO_Voltage1: 100\n"
      "Src_PDO_Max_Current1: 1\n");
  EXPECT_THAT(Failures(),
              ElementsAre("Source PDOs: Component 1, source PDO 1: Src_PDO_Voltage is declared more than once"));
}

TEST_F(Checks, PdoWithoutANumberFails) {
  Text("Num_Src_PDOs: 1\nSrc_PDO_Supply_Type: 0\nSrc_PDO_Voltage: 100\nSrc_PDO_Max_Current: 1\n");
  EXPECT_THAT(Failures(), ElementsAre("Source PDOs: Component 1, source PDO without a number"));
}

TEST_F(Checks, WrongNumberOfPdosFails) {
  Text("Num_Src_PDOs: 2\nNum_Snk_PDOs: 1\nSrc_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nSrc_PDO_Max_Current1: 1\n");
  EXPECT_THAT(Failures(),
              ElementsAre("Number of source PDOs: Component 1: Num_Src_PDOs is 2, but the number of source PDOs is 1",
                          "Number of sink PDOs: Component 1: Num_Snk_PDOs is 1, but the number of sink PDOs is 0"));
}

TEST_F(Checks, PdosWithoutTheNumberOfPdosFail) {
  Text("Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nSrc_PDO_Max_Current1: 1\n");
  EXPECT_THAT(Failures(), ElementsAre("Number of source PDOs: Component 1: Num_Src_PDOs is missing, but the number of "
                                      "source PDOs is 1"));
}

TEST_F(Checks, EveryComponentIsChecked) {
  Xml("<vif:Component/><vif:Component><vif:Num_Snk_PDOs value='3'/></vif:Component>");
  EXPECT_THAT(Failures(),
              ElementsAre("Number of sink PDOs: Component 2: Num_Snk_PDOs is 3, but the number of sink PDOs is 0"));
}

TEST_F(Checks, WrongNumberOfEndpointsFails) {
  Xml("<vif:Product><vif:USB4RouterList><vif:Usb4Router><vif:USB4_Num_PCIe_Endpoints value='1'/></vif:Usb4Router>"
      "</vif:USB4RouterList></vif:Product>");
  EXPECT_THAT(Failures(), ElementsAre("Number of PCIe endpoints: Router 0: USB4_Num_PCIe_Endpoints is 1, but the "
                                      "number of PCIe endpoints is 0"));
}

TEST_F(Checks, MissingRouterFails) {
  Text("USB4_Router_Index: 1\nUSB4_Router_ID0: 0\nUSB4_Num_PCIe_Endpoints0: 0\n");
  EXPECT_THAT(Failures(),
              ElementsAre("USB4 router of a port: Component 1: USB4_Router_Index is 1, but there is no such router"));
}

TEST_F(Checks, ModalOperationWithoutSvidsFails) {
  Text("Modal_Operation_Supported_SOP: YES\n");
  EXPECT_THAT(Failures(), ElementsAre("SOP modes: Component 1: modal operation is supported, but no SOP SVID is "
                                      "described"));
}

TEST_F(Checks, ModalOperationWithoutModesFails) {
  Text("Modal_Operation_Supported_SOP: YES\nSVID1_SOP: 0xFF01\n");
  EXPECT_THAT(Failures(),
              ElementsAre("SOP modes: Component 1: modal operation is supported, but no SOP SVID has a mode"));
}

TEST_F(Checks, ModalOperationWithAModePasses) {
  Text("Modal_Operation_Supported_SOP: YES\nSVID1_SOP: 0xFF01\nSVID1_Mode1_Enter_SOP: YES\n");
  EXPECT_THAT(LinesWith("PASS"), ElementsAre("SOP modes: nothing wrong; components with modal operation: 1"));
}

TEST_F(Checks, ModesAreNotRequiredWithoutModalOperation) {
  Text("Modal_Operation_Supported_SOP: NO\n");
  EXPECT_THAT(LinesWith("N/A"), testing::Contains("SOP modes: the VIF has no components with modal operation"));
}

}  // namespace
