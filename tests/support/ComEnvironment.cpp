// Lets test programs use COM.
#include "msxml/ComApartment.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class CComEnvironment : public testing::Environment {
 public:
  void SetUp() override { m_apartment = std::make_unique<CComApartment>(); }
  void TearDown() override { m_apartment = nullptr; }

 private:
  std::unique_ptr<CComApartment> m_apartment;
};

[[maybe_unused]] const testing::Environment* const kEnvironment =
    testing::AddGlobalTestEnvironment(new CComEnvironment);

}  // namespace
