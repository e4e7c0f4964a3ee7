// Fields through the C interface.
#include "Handles.h"

#include <gtest/gtest.h>

namespace {

using namespace testsupport;

TEST(CFieldTest, HasEverythingThatItWasDeclaredWith) {
  const FilePointer file = FileOf("Src_PDO_Voltage2: 0x64 ; 5000 mV\n");
  const vif_field field = FieldAt(file.get(), 0);
  EXPECT_STREQ(field.name, "Src_PDO_Voltage");
  EXPECT_STREQ(field.value, "0x64");
  EXPECT_STREQ(field.description, "5000 mV");
  EXPECT_EQ(field.is_numeric, 1);
  EXPECT_EQ(field.number, 100U);
  ASSERT_EQ(field.index_count, 2U);
  EXPECT_EQ(field.indexes[0].location, VIF_LOCATION_COMPONENT);
  EXPECT_EQ(field.indexes[0].number, 1U);
  EXPECT_EQ(field.indexes[1].location, VIF_LOCATION_SRC_PDO);
  EXPECT_EQ(field.indexes[1].number, 2U);
  EXPECT_EQ(field.indexes[2].location, VIF_LOCATION_UNSET);
  EXPECT_EQ(field.indexes[2].number, VIF_ANY_NUMBER);
}

TEST(CFieldTest, ATextHasNoNumber) {
  const FilePointer file = FileOf("$Vendor_Name: \"12\"\n");
  EXPECT_EQ(FieldAt(file.get(), 0).is_numeric, 0);
  EXPECT_EQ(FieldAt(file.get(), 0).number, VIF_NO_NUMBER);
}

TEST(CFieldTest, ANumberOfMoreThan64BitsIsNone) {
  const FilePointer file = FileOf("PID: 99999999999999999999\n");
  EXPECT_EQ(FieldAt(file.get(), 0).is_numeric, 1);
  EXPECT_EQ(FieldAt(file.get(), 0).number, VIF_NO_NUMBER);
}

TEST(CFieldTest, AGroupMayHaveNoNumber) {
  const FilePointer file = FileOf("Src_PDO_Voltage: 1\n");
  EXPECT_EQ(FieldAt(file.get(), 0).indexes[1].number, VIF_ANY_NUMBER);
}

TEST(CFieldTest, ThereIsNoneAfterTheLast) {
  const FilePointer file = FileOf("PID: 1\n");
  auto field = Sized<vif_field>();
  EXPECT_EQ(vif_file_field(file.get(), 1, &field), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_field(file.get(), VIF_NO_POSITION, &field), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_field(file.get(), 0, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_field(nullptr, 0, &field), VIF_ERROR_ARGUMENT);
}

}  // namespace
