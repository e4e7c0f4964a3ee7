#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

/// The laptop with its left port made like the right one, and with only those sink PDOs that are alike.
CExample AlikePorts() {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(1), "FR_Swap_Supported_As_Initial_Sink", "false")
      .Set(Component(1), "FR_Swap_Type_C_Current_Capability_As_Initial_Sink", "0")
      .Set(Component(1), "Host_Speed", "2")
      .Set(Component(1), "Master_Port", "false")
      .Set(Component(1), "Num_SVIDs_Min_SOP", "1")
      .Set(Component(1), "Num_SVIDs_Max_SOP", "1")
      .RemoveGroup(SopSvid(1, 2))
      .Set(Component(1), "PD_Power_As_Source", "15000")
      .Set(Component(1), "Num_Src_PDOs", "1")
      .RemoveGroup(SrcPdo(1, 2));
  for (const std::uint64_t pdo : {2U, 3U, 4U}) laptop.RemoveGroup(SnkPdo(1, pdo)).RemoveGroup(SnkPdo(2, pdo));
  return laptop;
}

TEST(PortsDifferTest, FindsNothingInPortsThatAreAlike) {
  EXPECT_THAT(AlikePorts().FindingsOf("ports-differ"), Are({}));
}

TEST(PortsDifferTest, FindsAFieldThatDiffers) {
  CExample laptop = AlikePorts();
  laptop.Set(Component(2), "RP_Value", "1");
  EXPECT_THAT(laptop.FindingsOf("ports-differ"),
              Are({{"ports-differ", "Component[2]/RP_Value",
                    "Component 2: of the same kind as Component 1, but it differs in RP_Value"}}));
}

TEST(PortsDifferTest, FindsAFieldThatOnePortDoesNotHave) {
  CExample earlier = AlikePorts();
  earlier.Remove(Component(1), "RP_Value");
  EXPECT_THAT(earlier.FindingsOf("ports-differ"),
              Are({{"ports-differ", "Component[2]/RP_Value",
                    "Component 2: of the same kind as Component 1, but it differs in RP_Value"}}));
  CExample later = AlikePorts();
  later.Remove(Component(2), "RP_Value");
  EXPECT_THAT(later.FindingsOf("ports-differ"),
              Are({{"ports-differ", "Component[2]/Port_Label",
                    "Component 2: of the same kind as Component 1, but it differs in RP_Value"}}));
}

TEST(PortsDifferTest, FindsPdosThatDiffer) {
  CExample values = AlikePorts();
  values.Set(SnkPdo(2, 1), "Snk_PDO_Op_Current", "299").Set(SrcPdo(2, 1), "Src_PDO_Max_Current", "299");
  EXPECT_THAT(values.FindingsOf("ports-differ"),
              Are({{"ports-differ", "Src_PDO_Supply_Type",
                    "Component 2, Source PDO 1: of the same kind as Component 1, but it differs in the source PDOs and "
                    "the sink PDOs"}}));
  CExample none = AlikePorts();
  none.RemoveGroup(SrcPdo(2, 1));
  EXPECT_THAT(none.FindingsOf("ports-differ"),
              Are({{"ports-differ", "Component[2]/Port_Label",
                    "Component 2: of the same kind as Component 1, but it differs in the source PDOs"}}));
}

TEST(PortsDifferTest, FindsUpToSixDifferences) {
  CExample laptop = AlikePorts();
  for (const char* name : {"Chunking_Implemented_SOP", "USB_Comms_Capable", "DR_Swap_To_DFP_Supported",
                           "Attempts_Discov_SOP", "Type_C_Implements_Try_SRC", "Type_C_Sources_VCONN"}) {
    laptop.Set(Component(2), name, "false");
  }
  EXPECT_THAT(laptop.FindingsOf("ports-differ"),
              Are({{"ports-differ", "Component[2]/Chunking_Implemented_SOP",
                    "Component 2: of the same kind as Component 1, but it differs in Chunking_Implemented_SOP, "
                    "USB_Comms_Capable, DR_Swap_To_DFP_Supported, Attempts_Discov_SOP, Type_C_Implements_Try_SRC and "
                    "Type_C_Sources_VCONN"}}));
  laptop.Set(Component(2), "Type_C_Is_Alt_Mode_Controller", "false");
  EXPECT_THAT(laptop.FindingsOf("ports-differ"), Are({}));
}

TEST(PortsDifferTest, SkipsWhatIsAPortsOwn) {
  CExample laptop = AlikePorts();
  laptop.Set(Component(2), "PID_SOP", "5123")
      .Set(Component(2), "Manufacturer_Info_PID_Port", "5123")
      .Set(Component(2), "Host_Contains_Captive_Retimer", "true")
      .Add(Component(2), "Device_Contains_Captive_Retimer", "true")
      .Add(Component(2), "USB4_Lane_0_Adapter", "3")
      .Add(Component(2), "Hub_Port_Number", "2");
  EXPECT_THAT(laptop.FindingsOf("ports-differ"), Are({}));
}

TEST(PortsDifferTest, SkipsPortsOfOtherKinds) {
  for (const char* name : {"PD_Port_Type", "Type_C_State_Machine", "Connector_Type", "USB4_Supported"}) {
    CExample laptop = AlikePorts();
    laptop.Set(Component(2), name, "1").Set(Component(2), "RP_Value", "1");
    EXPECT_THAT(laptop.FindingsOf("ports-differ"), Are({})) << name;
  }
  CExample withoutPd = AlikePorts();
  withoutPd.Set(Component(2), "USB_PD_Support", "false");
  EXPECT_THAT(withoutPd.FindingsOf("ports-differ"), Are({}));
  CExample unknown = AlikePorts();
  unknown.Remove(Component(1), "Connector_Type").Remove(Component(2), "Connector_Type");
  unknown.Set(Component(2), "RP_Value", "1");
  EXPECT_THAT(unknown.FindingsOf("ports-differ"), Are({}));
}

TEST(PortsDifferTest, ComparesPortsWithoutPd) {
  CExample laptop = AlikePorts();
  laptop.Set(Component(1), "USB_PD_Support", "false").Set(Component(2), "USB_PD_Support", "false");
  laptop.Remove(Component(1), "PD_Port_Type").Remove(Component(2), "PD_Port_Type");
  EXPECT_THAT(laptop.FindingsOf("ports-differ"), Are({}));
  laptop.Set(Component(2), "RP_Value", "1");
  EXPECT_EQ(laptop.FindingsOf("ports-differ").size(), 1U);
}

/// Three ports of one kind that say nothing else.
CExample ThreePorts() {
  CExample dock("usb4-dock.xml");
  for (const std::uint64_t port : {1U, 2U, 3U}) dock.RemoveGroup(Component(port));
  for (const std::uint64_t port : {1U, 2U, 3U}) {
    for (const char* name : {"PD_Port_Type", "Type_C_State_Machine", "Connector_Type"}) {
      dock.Add(Component(port), name, "0");
    }
  }
  return dock;
}

TEST(PortsDifferTest, ComparesWithTheFirstPortAndTheLast) {
  CExample ports = ThreePorts();
  ports.Add(Component(2), "RP_Value", "1").Add(Component(3), "RP_Value", "1").Add(Component(3), "Host_Speed", "1");
  EXPECT_THAT(
      ports.FindingsOf("ports-differ"),
      Are({{"ports-differ", "RP_Value", "Component 2: of the same kind as Component 1, but it differs in RP_Value"},
           {"ports-differ", "Host_Speed",
            "Component 3: of the same kind as Component 2, but it differs in Host_Speed"}}));
}

TEST(PortsDifferTest, SaysNothingOfAPortThatIsLikeTheFirst) {
  CExample ports = ThreePorts();
  ports.Add(Component(2), "RP_Value", "1");
  EXPECT_EQ(ports.FindingsOf("ports-differ").size(), 1U);
}

TEST(PortsDifferTest, SaysNothingOfWhatOtherRulesHaveFound) {
  CExample laptop = AlikePorts();
  laptop.Set(Component(2), "XID_SOP", "9").Set(Component(2), "RP_Value", "4", "<select>");
  EXPECT_THAT(laptop.FindingsOf("ports-differ"), Are({}));
}

TEST(PortsDifferTest, IsForEditionsFrom2_0) {
  CExample laptop = AlikePorts();
  laptop.Set(Component(2), "RP_Value", "1").SetEdition("2.0");
  EXPECT_EQ(laptop.FindingsOf("ports-differ").size(), 1U);
  laptop.SetEdition("1.40");
  EXPECT_THAT(laptop.FindingsOf("ports-differ"), Are({}));
}

}  // namespace
}  // namespace vifanalysis
