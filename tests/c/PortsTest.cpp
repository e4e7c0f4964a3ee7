// Comparisons of ports through the C interface.
#include "Handles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using namespace testsupport;

PortsPointer PortsOf(const vif_file* file) {
  vif_ports* ports = nullptr;
  EXPECT_EQ(vif_compare_ports(file, nullptr, nullptr, &ports, nullptr), VIF_OK);
  return PortsPointer(ports);
}

TEST(CPortsTest, ComparesPortsOfOneKind) {
  const FilePointer file = MakeFile();
  const std::string path = std::string(SOURCE_FOLDER) + "/examples/vif/two-port-laptop.xml";
  ASSERT_EQ(vif_file_load(file.get(), path.c_str(), nullptr, nullptr), VIF_OK);
  const PortsPointer ports = PortsOf(file.get());
  ASSERT_EQ(vif_ports_count(ports.get()), 1U);
  auto comparison = Sized<vif_port_comparison>();
  ASSERT_EQ(vif_ports_get(ports.get(), 0, &comparison), VIF_OK);
  EXPECT_EQ(comparison.component, 2U);
  EXPECT_EQ(comparison.other, 1U);
  EXPECT_GT(vif_differences_count(comparison.differences), 0U);
}

TEST(CPortsTest, DifferencesOfPortsCannotBeFreedOnTheirOwn) {
  const FilePointer file = MakeFile();
  const std::string path = std::string(SOURCE_FOLDER) + "/examples/vif/two-port-laptop.xml";
  ASSERT_EQ(vif_file_load(file.get(), path.c_str(), nullptr, nullptr), VIF_OK);
  const PortsPointer ports = PortsOf(file.get());
  auto comparison = Sized<vif_port_comparison>();
  ASSERT_EQ(vif_ports_get(ports.get(), 0, &comparison), VIF_OK);
  const std::size_t count = vif_differences_count(comparison.differences);
  vif_differences_free(const_cast<vif_differences*>(comparison.differences));
  EXPECT_EQ(vif_differences_count(comparison.differences), count);
}

TEST(CPortsTest, ArgumentsMustNotBeNull) {
  const FilePointer file = FileOf("PID: 1\n");
  vif_ports* ports = nullptr;
  EXPECT_EQ(vif_compare_ports(nullptr, nullptr, nullptr, &ports, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_compare_ports(file.get(), nullptr, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  auto comparison = Sized<vif_port_comparison>();
  EXPECT_EQ(vif_ports_get(nullptr, 0, &comparison), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_ports_get(PortsOf(file.get()).get(), 0, &comparison), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_ports_count(nullptr), 0U);
  vif_ports_free(nullptr);
}

}  // namespace
