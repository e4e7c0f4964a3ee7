#include "VendorInfoFile.h"

#include "BaseUtilities/PathText.h"
#include "Errors.h"
#include "VIFImpl.h"
#include "msxml/ComPointer.h"

#include <utility>

CVendorInfoFile::CVendorInfoFile() : m_impl(new CVIFImpl) {}

namespace {

[[noreturn]] void ThrowCreateError(const std::filesystem::path& fileName, const _com_error& error) {
  CSimpleBuffer reason;
  const auto* text = error.ErrorMessage();
  if (text == nullptr) text = reason.Printf(L"COM Error Code 0x%08X", error.Error());
  vif::ThrowDomDocError(R"(Vendor Info File Create Exception (file name: "%ls") - %ls)", PathToWide(fileName), text);
}

}  // namespace

CVendorInfoFile::CVendorInfoFile(const std::filesystem::path& fileName, std::vector<VifFieldDef>* fieldDefs) try
    : m_impl(new CVIFImpl(fileName, fieldDefs)) {
} catch (const _com_error& error) {
  ThrowCreateError(fileName, error);
}

CVendorInfoFile::CVendorInfoFile(std::nullptr_t, std::vector<VifFieldDef>* fieldDefs)
    : CVendorInfoFile(std::filesystem::path(), fieldDefs) {}

CVendorInfoFile::CVendorInfoFile(const std::vector<CVIFField>& fields) : CVendorInfoFile() { Append(fields); }

CVendorInfoFile::CVendorInfoFile(const CVendorInfoFile& other)
    : m_impl(other.m_impl != nullptr ? new CVIFImpl(*other.m_impl) : new CVIFImpl) {}

CVendorInfoFile::CVendorInfoFile(CVendorInfoFile&& other) noexcept : m_impl(std::exchange(other.m_impl, nullptr)) {}

CVendorInfoFile& CVendorInfoFile::operator=(const CVendorInfoFile& other) {
  if (this == &other) return *this;
  // Copy before letting go of anything, so that a failed copy changes nothing.
  CVIFImpl* copy = other.m_impl != nullptr ? new CVIFImpl(*other.m_impl) : nullptr;
  delete std::exchange(m_impl, copy);
  return *this;
}

CVendorInfoFile& CVendorInfoFile::operator=(CVendorInfoFile&& other) noexcept {
  std::swap(m_impl, other.m_impl);
  return *this;
}

CVendorInfoFile::~CVendorInfoFile() { delete m_impl; }

CVIFImpl& CVendorInfoFile::Content() {
  if (m_impl == nullptr) m_impl = new CVIFImpl;
  return *m_impl;
}

const std::vector<CVIFField>& CVendorInfoFile::Fields() const noexcept {
  static const std::vector<CVIFField> none;
  return m_impl != nullptr ? m_impl->Fields() : none;
}

void CVendorInfoFile::Append(const char* fileName) {
  Content().Append(PathFromUtf8(fileName != nullptr ? fileName : ""));
}

void CVendorInfoFile::Append(const std::vector<CVIFField>& fields) {
  try {
    Content().Append(fields);
  } catch (...) {
    // Deliberate: hosts expect an object to be empty after a list could not be appended in full.
    delete std::exchange(m_impl, nullptr);
    throw;
  }
}

const wchar_t* CVendorInfoFile::FileName() const noexcept {
  return m_impl != nullptr ? m_impl->FileName().c_str() : L"";
}

std::uint32_t CVendorInfoFile::ComponentCount() const noexcept {
  return m_impl != nullptr ? m_impl->ComponentCount() : 0;
}
