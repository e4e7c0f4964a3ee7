// The C interface with memory running out at each of its allocations.
#include "Handles.h"
#include "memory/Samples.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <string>
#include <vector>

namespace {

using namespace testsupport;

/// A status that is right when memory ran out, or when it did not matter.
/// \throws std::bad_alloc in the former case
void ExpectDone(vif_status status, vif_error* error) {
  if (status == VIF_ERROR_MEMORY) {
    // Without allocating anything.
    const bool isRight =
        vif_error_status(error) == VIF_ERROR_MEMORY && std::string_view(vif_error_message(error)) == "memory ran out";
    vif_error_free(error);
    if (!isRight) throw std::logic_error("the error does not say that memory ran out");
    throw std::bad_alloc();
  }
  vif_error_free(error);
  if (status != VIF_OK) throw std::logic_error("not for lack of memory");
}

void ExpectLoadBearsFailures(const std::string& bytes, const char* name) {
  const FilePointer whole = FileOf("PID: 1\n", "before.txt");
  ASSERT_EQ(LoadBytes(whole.get(), bytes, name), VIF_OK);
  const std::vector<std::string> expected = CFieldTexts(whole.get());
  ForEveryFailingAllocation([] { return FileOf("PID: 1\n", "before.txt"); },
                            [&](FilePointer& file) {
                              vif_error* error = nullptr;
                              const vif_status status = LoadBytes(file.get(), bytes, name, &error);
                              ExpectDone(status, error);
                            },
                            [&](const FilePointer& file, bool isDone) {
                              const std::vector<std::string> before = {"PID=1 @6.1"};
                              EXPECT_EQ(CFieldTexts(file.get()), isDone ? expected : before);
                              EXPECT_STREQ(vif_file_name(file.get()), "before.txt");
                              EXPECT_EQ(LoadBytes(file.get(), bytes, name), VIF_OK);
                            });
}

TEST(CMemoryTest, LoadingText) { ExpectLoadBearsFailures(TextVif(), "a.txt"); }

TEST(CMemoryTest, LoadingTextThatIsNotUtf8) { ExpectLoadBearsFailures("$Vendor_Name: \"\xFF\" ; \xFE\n", "a.txt"); }

TEST(CMemoryTest, LoadingXml) { ExpectLoadBearsFailures(XmlDocumentText(), "a.xml"); }

TEST(CMemoryTest, RefusingXml) {
  ForEveryFailingAllocation([] { return MakeFile(); },
                            [](FilePointer& file) {
                              vif_error* error = nullptr;
                              const vif_status status = LoadBytes(file.get(), "<a><b/></c>", "a.xml", &error);
                              if (status == VIF_ERROR_INVALID) {
                                const bool hasReasons = vif_error_reason_count(error) > 0;
                                vif_error_free(error);
                                if (!hasReasons) throw std::logic_error("no reasons");
                                return;
                              }
                              ExpectDone(status, error);
                              throw std::logic_error("a file that is not valid was loaded");
                            },
                            [](const FilePointer& file, bool) { EXPECT_EQ(vif_file_field_count(file.get()), 0U); });
}

/// Expects a function that makes a handle to make it, or to run out of memory and leave null.
/// \param make gets where to put the handle and the error
template <typename Handle, typename Make>
void ExpectMakingBearsFailures(const Make& make) {
  ForEveryFailingAllocation([] { return Handle(); },
                            [&](Handle& handle) {
                              vif_error* error = nullptr;
                              auto* made = handle.release();
                              const vif_status status = make(&made, &error);
                              handle.reset(made);
                              ExpectDone(status, error);
                            },
                            [](const Handle& handle, bool isDone) { EXPECT_EQ(handle != nullptr, isDone); });
}

TEST(CMemoryTest, MakingAFile) {
  ExpectMakingBearsFailures<FilePointer>([](vif_file** file, vif_error** error) { return vif_file_make(file, error); });
}

TEST(CMemoryTest, Queries) {
  const FilePointer file = FileOf(TextVif());
  for (const char* pattern : {"Src.*", "PID"}) {
    ExpectMakingBearsFailures<PositionsPointer>([&](vif_positions** positions, vif_error** error) {
      return vif_file_find(file.get(), pattern, nullptr, 0, positions, error);
    });
    ExpectMakingBearsFailures<PositionsPointer>([&](vif_positions** positions, vif_error** error) {
      return vif_file_find_first(file.get(), pattern, nullptr, 0, positions, error);
    });
  }
}

TEST(CMemoryTest, QueriesForOneField) {
  const FilePointer file = FileOf("PID: 1\n");
  ASSERT_EQ(LoadBytes(file.get(), "PID: 2\n", "b.txt"), VIF_OK);
  const vif_index component = {VIF_LOCATION_COMPONENT, 1};
  for (const auto find : {vif_file_find_unique, vif_file_find_single, vif_file_find_first_unique}) {
    ForEveryFailingAllocation(
        [] { return VIF_NO_POSITION; },
        [&](std::size_t& position) {
          vif_error* error = nullptr;
          const vif_status status = find(file.get(), "P.D", &component, 1, &position, &error);
          ExpectDone(status, error);
        },
        [](std::size_t position, bool isDone) { EXPECT_EQ(position, isDone ? 0U : VIF_NO_POSITION); });
  }
}

TEST(CMemoryTest, LoadingFromDisk) {
  const TempDir directory;
  const std::string path = directory.Write("a.xml", XmlDocumentText()).string();
  ForEveryFailingAllocation(
      [] { return MakeFile(); },
      [&](FilePointer& file) {
        vif_error* error = nullptr;
        const vif_status status = vif_file_load(file.get(), path.c_str(), nullptr, &error);
        ExpectDone(status, error);
      },
      [](const FilePointer& file, bool isDone) { EXPECT_EQ(vif_file_field_count(file.get()) > 0, isDone); });
}

TEST(CMemoryTest, ChecksFromDisk) {
  const TempDir directory;
  const std::string path = directory.Write("a.txt", "no declaration\nPID: 1\nPID: 2\n").string();
  ExpectMakingBearsFailures<FindingsPointer>([&](vif_findings** findings, vif_error** error) {
    return vif_check_file(path.c_str(), nullptr, nullptr, findings, error);
  });
}

TEST(CMemoryTest, Checks) {
  const std::string bytes = "no declaration that has some length\nPID: 1\nPID: 2\n" + TextVif();
  ExpectMakingBearsFailures<FindingsPointer>([&](vif_findings** findings, vif_error** error) {
    return vif_check_bytes(bytes.data(), bytes.size(), "a.txt", nullptr, nullptr, findings, error);
  });
}

TEST(CMemoryTest, Comparisons) {
  const FilePointer before = FileOf(TextVif());
  const FilePointer after = FileOf("PID: 2\nSrc_PDO_Voltage2: 180\n");
  ExpectMakingBearsFailures<DifferencesPointer>([&](vif_differences** differences, vif_error** error) {
    return vif_compare(before.get(), after.get(), nullptr, nullptr, differences, error);
  });
  ExpectMakingBearsFailures<PortsPointer>([&](vif_ports** ports, vif_error** error) {
    return vif_compare_ports(before.get(), nullptr, nullptr, ports, error);
  });
}

TEST(CMemoryTest, ComparisonsOfFindings) {
  const FindingsPointer before = Check("no declaration\n", "a.txt");
  const FindingsPointer after = Check("PID: 1\nPID: 2\n", "a.txt");
  FindingsPointer fixed;
  ExpectMakingBearsFailures<FindingsPointer>([&](vif_findings** added, vif_error** error) {
    vif_findings* gone = nullptr;
    const vif_status status = vif_compare_findings(before.get(), after.get(), nullptr, &gone, added, error);
    vif_findings_free(gone);
    return status;
  });
}

TEST(CMemoryTest, Meanings) {
  const FilePointer file = FileOf("Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\n");
  ExpectMakingBearsFailures<TextPointer>([&](vif_text** meaning, vif_error** error) {
    auto quantity = Sized<vif_quantity>();
    const vif_status status = vif_file_quantity(file.get(), 1, &quantity, error);
    return status != VIF_OK ? status : vif_file_meaning(file.get(), 1, meaning, nullptr, error);
  });
}

TEST(CMemoryTest, Documents) {
  const FilePointer file = FileOf("PID: 1 ; \"a\"\nSrc_PDO_Voltage1: 100\n");
  const FindingsPointer findings = Check("PID: 1\nno declaration\n", "a.txt");
  const char* name = "a name that is too long to be kept without memory.txt";
  ExpectMakingBearsFailures<TextPointer>(
      [&](vif_text** text, vif_error** error) { return vif_file_json(file.get(), &name, 1, text, error); });
  ExpectMakingBearsFailures<TextPointer>(
      [&](vif_text** text, vif_error** error) { return vif_file_csv(file.get(), text, error); });
  ExpectMakingBearsFailures<TextPointer>(
      [&](vif_text** text, vif_error** error) { return vif_findings_json(findings.get(), name, text, error); });
  vif_differences* differences = nullptr;
  const FilePointer other = FileOf("PID: 2\n");
  ASSERT_EQ(vif_compare(file.get(), other.get(), nullptr, nullptr, &differences, nullptr), VIF_OK);
  const DifferencesPointer owned(differences);
  ExpectMakingBearsFailures<TextPointer>([&](vif_text** text, vif_error** error) {
    return vif_differences_json(differences, name, name, findings.get(), findings.get(), text, error);
  });
}

TEST(CMemoryTest, SourceLines) {
  const std::string line(300, 'x');
  ExpectMakingBearsFailures<TextPointer>([&](vif_text** before, vif_error** error) {
    vif_text* after = nullptr;
    const vif_status status = vif_source_line(line.data(), line.size(), 1, 150, before, &after, error);
    vif_text_free(after);
    return status;
  });
}

TEST(CMemoryTest, Reports) {
  const FilePointer file = FileOf("PID: 1\nSrc_PDO_Voltage1: 100\n");
  auto reported = Sized<vif_reported_file>();
  reported.file = file.get();
  ExpectMakingBearsFailures<TextPointer>(
      [&](vif_text** page, vif_error** error) { return vif_report(&reported, nullptr, nullptr, page, error); });
}

TEST(CMemoryTest, ReportsOfTwoFiles) {
  const FilePointer before = FileOf("PID: 1\nSrc_PDO_Voltage1: 100\n");
  const FilePointer after = FileOf("PID: 2\nSrc_PDO_Voltage1: 180\n");
  const FindingsPointer findings = Check("PID: 1\nPID: 2\n", "a.txt");
  auto first = Sized<vif_reported_file>();
  first.file = before.get();
  auto second = Sized<vif_reported_file>();
  second.file = after.get();
  second.findings = findings.get();
  ExpectMakingBearsFailures<TextPointer>(
      [&](vif_text** page, vif_error** error) { return vif_report(&first, &second, nullptr, page, error); });
}

TEST(CMemoryTest, Explanations) {
  ExpectMakingBearsFailures<ExplanationPointer>(
      [](vif_explanation** explanation, vif_error** error) { return vif_explain("PD_Port_Type", explanation, error); });
}

}  // namespace
