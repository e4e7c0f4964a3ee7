// Documents: loading and querying them.
#include "ComMemory.h"
#include "DOMDocVIF.h"
#include "Samples.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using testsupport::ForEveryFailingAllocation;
using testsupport::WithComErrors;
using DocumentPointer = std::unique_ptr<CDOMDocVIF>;

DocumentPointer Empty() { return std::make_unique<CDOMDocVIF>(); }

class DocumentMemoryTest : public testing::Test {
 protected:
  DocumentPointer Loaded() const {
    DocumentPointer document = Empty();
    EXPECT_TRUE(document->ValidateDoc(m_valid));
    return document;
  }

  /// Expects the document to load and then hold the whole file.
  void ExpectUsable(CDOMDocVIF& document) const {
    EXPECT_TRUE(document.ValidateDoc(m_valid));
    ExpectWhole(document);
  }

  static void ExpectWhole(const CDOMDocVIF& document) {
    EXPECT_TRUE(document.Problems().empty());
    const DOMElementPtr root = document.GetRootElement();
    EXPECT_EQ(testsupport::NodeName(*root), "vif:VIF");
    EXPECT_EQ(testsupport::Select(*root, L"vif:Component/vif:SrcPdoList/vif:SrcPDO/vif:*").size(), 2U);
  }

  testsupport::TempDir m_dir;
  std::filesystem::path m_valid = m_dir.Write("a file with a long name.xml", testsupport::XmlDocumentText());
  std::filesystem::path m_invalid =
      m_dir.Write("b.xml", testsupport::XmlVif("<vif:Component><vif:PD_Port_Type value=\"many\"/></vif:Component>"));
};

TEST_F(DocumentMemoryTest, Construct) {
  ForEveryFailingAllocation([] { return WithComErrors(Empty); },
                            [&](const std::optional<DocumentPointer>& document) {
                              if (document) ExpectUsable(**document);
                            });
}

TEST_F(DocumentMemoryTest, ValidateDoc) {
  ForEveryFailingAllocation(
      Empty, [&](DocumentPointer& document) { EXPECT_TRUE(document->ValidateDoc(m_valid)); },
      [&](DocumentPointer& document, bool isDone) {
        if (isDone) ExpectWhole(*document);
        ExpectUsable(*document);
      });
}

TEST_F(DocumentMemoryTest, ValidateDocOfAnotherFileThatIsNotValid) {
  ForEveryFailingAllocation([&] { return Loaded(); },
                            [&](DocumentPointer& document) { EXPECT_FALSE(document->ValidateDoc(m_invalid)); },
                            [&](DocumentPointer& document, bool isDone) {
                              if (isDone) {
                                EXPECT_EQ(document->Problems().size(), 1U);
                              }
                              ExpectUsable(*document);
                            });
}

TEST_F(DocumentMemoryTest, CanLoadDocThatIsValid) {
  const std::wstring name = testsupport::WidePath(m_valid);
  ForEveryFailingAllocation([&] { return Loaded(); },
                            [&](DocumentPointer& document) { EXPECT_TRUE(document->CanLoadDoc(name, L"VIF", true)); },
                            [&](DocumentPointer& document, bool isDone) {
                              if (isDone) ExpectWhole(*document);
                              ExpectUsable(*document);
                            });
}

TEST_F(DocumentMemoryTest, CanLoadDocThatIsNotValid) {
  const std::wstring name = testsupport::WidePath(m_invalid);
  for (const bool validate : {false, true}) {
    const wchar_t* root = validate ? L"VIF" : L"AnotherRootWithALongName";
    ForEveryFailingAllocation(
        [&] { return Loaded(); },
        [&](DocumentPointer& document) { EXPECT_FALSE(document->CanLoadDoc(name, root, validate)); },
        [&](DocumentPointer& document, bool isDone) {
          if (isDone) {
            EXPECT_EQ(document->Problems().size(), 1U);
          }
          ExpectUsable(*document);
        });
  }
}

TEST_F(DocumentMemoryTest, ParseDoc) {
  ForEveryFailingAllocation([&] { return Loaded(); },
                            [](DocumentPointer& document) { EXPECT_TRUE(document->ParseDoc()); },
                            [&](DocumentPointer& document, bool isDone) {
                              if (isDone) ExpectWhole(*document);
                              ExpectUsable(*document);
                            });
}

TEST_F(DocumentMemoryTest, GetRootElement) {
  const DocumentPointer document = Loaded();
  ForEveryFailingAllocation([&] { return WithComErrors([&] { return document->GetRootElement(); }); },
                            [&](const std::optional<DOMElementPtr>& root) {
                              if (root) {
                                EXPECT_NE(*root, nullptr);
                              }
                              ExpectWhole(*document);
                            });
}

TEST_F(DocumentMemoryTest, Locate) {
  using Root = std::pair<DocumentPointer, DOMElementPtr>;
  const auto begin = [&] {
    DocumentPointer document = Loaded();
    DOMElementPtr root = document->GetRootElement();
    return Root(std::move(document), std::move(root));
  };
  const auto locate = [](Root& root) {
    std::size_t line = 0;
    std::size_t column = 0;
    EXPECT_TRUE(root.first->Locate(*root.second, line, column));
    EXPECT_EQ(line, 2U);
  };
  ForEveryFailingAllocation(begin, locate, [&](Root& root, bool) { locate(root); });
}

TEST_F(DocumentMemoryTest, PathOf) {
  using Element = std::pair<DocumentPointer, DOMNodePtr>;
  const auto begin = [&] {
    DocumentPointer document = Loaded();
    const DOMElementPtr root = document->GetRootElement();
    DOMNodePtr element = testsupport::Select(*root, L"vif:Component/vif:SrcPdoList").back();
    return Element(std::move(document), std::move(element));
  };
  ForEveryFailingAllocation(
      begin, [](Element& element) { EXPECT_EQ(element.first->PathOf(*element.second), "VIF/Component[2]/SrcPdoList"); },
      [](Element& element, bool) { EXPECT_EQ(element.first->PathOf(*element.second), "VIF/Component[2]/SrcPdoList"); });
}

TEST_F(DocumentMemoryTest, MakeFullSchemaPath) {
  const std::wstring expected = CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd");
  ForEveryFailingAllocation([] { return CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd"); },
                            [&](const std::optional<std::wstring>& path) {
                              if (path) {
                                EXPECT_EQ(*path, expected);
                              }
                            });
}

TEST_F(DocumentMemoryTest, SetSchemaDirectory) {
  const std::filesystem::path directory = m_dir.Path() / "a directory of schemas with a long name";
  std::filesystem::create_directory(directory);
  std::filesystem::create_directory(directory / "t.xsd");
  const std::wstring before = CDOMDoc::MakeFullSchemaPath(L"t.xsd");
  const std::wstring set = testsupport::WidePath(directory / "t.xsd");
  ForEveryFailingAllocation([] { return 0; }, [&](int) { CDOMDoc::SetSchemaDirectory(directory); },
                            [&](int, bool isDone) {
                              EXPECT_EQ(CDOMDoc::MakeFullSchemaPath(L"t.xsd"), isDone ? set : before);
                              CDOMDoc::SetSchemaDirectory({});
                            });
}

}  // namespace
