#include "SchemasOption.h"

#include "Command.h"
#include "Values.h"

#include <BaseUtilities/PathText.h>
#include <TestUtilities/DOMDoc.h>

#include <CLI/CLI.hpp>

#include <filesystem>
#include <string>
#include <system_error>

namespace cli {

namespace {

void UseSchemas(const std::string& name) {
  const std::filesystem::path directory = PathFromUtf8(name);
  std::error_code error;
  if (!std::filesystem::is_directory(directory, error)) throw Failure("--schemas: \"" + name + "\" is not a directory");
  const bool hasAny = std::filesystem::exists(directory / "VendorInfoFile.xsd", error) ||
                      std::filesystem::exists(directory / "VendorInfoFileOptionalContent.xsd", error);
  if (!hasAny) throw Failure("--schemas: neither schema is in \"" + name + "\"");
  CDOMDoc::SetSchemaDirectory(directory);
}

}  // namespace

void AddSchemasOption(CLI::App& command) {
  command
      .add_option_function<std::string>("--schemas", UseSchemas,
                                        "The directory with the schemas for XML files; the installed ones by default")
      ->type_name(kDirectory)
      ->option_text("DIR");
}

}  // namespace cli
