// Loading the library at run time: what the program finds in it, and that it is gone once unloaded.
#include "Modules.h"
#include "VIFField.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

const std::string kLibrary = VIF_LIBRARY;

/// Unloads the library at the end of a test.
class CLoaded {
 public:
  explicit CLoaded(const std::string& file) : m_library(modules::Load(file)) {}
  CLoaded(const CLoaded&) = delete;
  CLoaded& operator=(const CLoaded&) = delete;
  ~CLoaded() {
    if (m_library != nullptr) modules::Unload(m_library);
  }

  bool IsLoaded() const { return m_library != nullptr; }

  template <typename Symbol>
  Symbol* Find(const char* name) const {
    return reinterpret_cast<Symbol*>(modules::Find(m_library, name));
  }

 private:
  void* m_library;
};

template <typename Constant>
void ExpectExported(const CLoaded& library, const char* name, const Constant& expected) {
  const auto* const constant = library.Find<const Constant>(name);
  ASSERT_NE(constant, nullptr) << name;
  EXPECT_EQ(*constant, expected) << name;
}

TEST(LoadingTest, AllConstantsOfAFieldAreFoundByName) {
  const CLoaded library(kLibrary);
  ASSERT_TRUE(library.IsLoaded());
  ExpectExported<std::size_t>(library, "_ZN9CVIFField15MAX_INDEX_DEPTHE", 3);
  ExpectExported<VifIndexNumber>(library, "_ZN9CVIFField19INDEX_NOT_SPECIFIEDE", 0xFFFFFFFFFFFFFFFF);
  ExpectExported<VifIndex>(library, "_ZN9CVIFField17UNSPECIFIED_INDEXE", {eVifLocUnset, 0xFFFFFFFFFFFFFFFF});
  ExpectExported<std::uint64_t>(library, "_ZN9CVIFField18VIF_VALUE_UNSET_64E", 0xFFFFFFFFFFFFFFFF);
  ExpectExported<std::uint32_t>(library, "_ZN9CVIFField15VIF_VALUE_UNSETE", 0xFFFFFFFF);
}

TEST(LoadingTest, ConstantsOfAFieldAreConstantExpressions) {
  static_assert(CVIFField::MAX_INDEX_DEPTH == 3);
  static_assert(CVIFField::INDEX_NOT_SPECIFIED == 0xFFFFFFFFFFFFFFFF);
  static_assert(CVIFField::UNSPECIFIED_INDEX == VifIndex{eVifLocUnset, CVIFField::INDEX_NOT_SPECIFIED});
  static_assert(CVIFField::VIF_VALUE_UNSET_64 == 0xFFFFFFFFFFFFFFFF);
  static_assert(CVIFField::VIF_VALUE_UNSET == 0xFFFFFFFF);
}

TEST(LoadingTest, UnloadedLibraryIsGone) {
  ASSERT_FALSE(modules::IsLoaded(kLibrary));
  {
    const CLoaded library(kLibrary);
    ASSERT_TRUE(library.IsLoaded());
    EXPECT_TRUE(modules::IsLoaded(kLibrary));
  }
  EXPECT_FALSE(modules::IsLoaded(kLibrary));
}

TEST(LoadingTest, LibraryIsUnloadedWithThePlugInThatUsedIt) {
  {
    const CLoaded plugin(LOADING_PLUGIN);
    ASSERT_TRUE(plugin.IsLoaded());
    auto* const countNumbers = plugin.Find<std::size_t(const char*, const char*)>("CountNumbers");
    ASSERT_NE(countNumbers, nullptr);
    EXPECT_EQ(countNumbers(VIF_EXAMPLES "/gan-charger-65w.txt", "Src_PDO_V[a-z]+"), 4U);
    EXPECT_TRUE(modules::IsLoaded(kLibrary));
  }
  EXPECT_FALSE(modules::IsLoaded(LOADING_PLUGIN));
  EXPECT_FALSE(modules::IsLoaded(kLibrary));
}

}  // namespace
