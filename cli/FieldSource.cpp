#include "FieldSource.h"

#include "Command.h"

#include <BaseUtilities/PathText.h>
#include <BaseUtilities/SimpleBuffer.h>
#include <VIFInvalidFile.h>
#include <analysis/Check.h>
#include <analysis/FileForm.h>
#include <analysis/Files.h>
#include <msxml/ComPointer.h>

#include <new>

namespace cli {

using vifanalysis::AdviceOnExtension;
using vifanalysis::FirstUnreadableLine;
using vifanalysis::HasExtension;

namespace {

/// The first reason why a file is not valid, and the number of further ones.
std::string ReasonText(const std::vector<DOMDocProblem>& problems) {
  const DOMDocProblem& first = problems.front();
  std::string text;
  if (first.line != 0) text += "line " + std::to_string(first.line);
  if (first.column != 0) text += ", column " + std::to_string(first.column);
  if (!text.empty()) text += ": ";
  text += first.reason;
  if (problems.size() > 1) text += " (and " + std::to_string(problems.size() - 1) + " more; see 'vif check')";
  return text;
}

/// Whether the library's message names the file. The message about extensions does not, although a short file name may
/// occur in it.
bool IsNamed(const std::string& fileName, const std::string& reason) {
  return !reason.starts_with("Invalid file type") && reason.find(fileName) != std::string::npos;
}

/// The library loads a text file up to a read error and does not report the error.
void RequireReadable(const std::string& fileName) {
  const std::optional<std::size_t> line = FirstUnreadableLine(PathFromUtf8(fileName));
  if (line) throw Failure(std::string("reading the file failed in line ").append(std::to_string(*line)));
}

void RequireItsOwnExtension(const std::string& fileName) {
  if (const std::optional<std::string> advice = AdviceOnExtension(PathFromUtf8(fileName))) throw Failure(*advice);
}

void LoadFile(const std::string& fileName, CVendorInfoFile& vif) {
  const std::size_t countBefore = vif.Count();
  try {
    vif.Append(fileName.c_str());
  } catch (const CVIFInvalidFile&) {
    RequireItsOwnExtension(fileName);
    throw;
  }
  if (!HasExtension(PathFromUtf8(fileName), ".txt")) return;
  RequireReadable(fileName);
  // XML that is named as text loads without an error and yields no field.
  if (vif.Count() == countBefore) RequireItsOwnExtension(fileName);
}

}  // namespace

CVendorInfoFile LoadFiles(const std::vector<std::string>& fileNames) {
  CVendorInfoFile vif;
  for (const std::string& fileName : fileNames) {
    ReadFile(fileName, [&] { LoadFile(fileName, vif); });
  }
  return vif;
}

void ReadFile(const std::string& fileName, const std::function<void()>& read) {
  if (fileName.empty()) throw Failure("a file name is empty");
  try {
    read();
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const CVIFInvalidFile& error) {
    throw Failure(std::string(error.what()).append(" ").append(ReasonText(error.Problems())));
  } catch (const _com_error& error) {
    CSimpleBuffer reason;
    throw Failure(reason.Printf("%s: COM error 0x%08X", fileName, error.Error()));
  } catch (const Failure& error) {
    throw Failure(std::string(fileName).append(": ").append(error.what()));
  } catch (const vifanalysis::CCheckError& error) {
    throw Failure(std::string(fileName).append(": ").append(error.what()));
  } catch (const std::exception& error) {
    const std::string reason = error.what();
    if (IsNamed(fileName, reason)) throw Failure(reason);
    throw Failure(std::string(fileName).append(": ").append(reason));
  }
}

std::vector<vifanalysis::Finding> FindingsIn(const std::string& fileName, const vifanalysis::CheckOptions& options) {
  std::vector<vifanalysis::Finding> findings;
  ReadFile(fileName, [&] { findings = vifanalysis::CheckFile(PathFromUtf8(fileName), options); });
  return findings;
}

}  // namespace cli
