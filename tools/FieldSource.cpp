#include "FieldSource.h"

#include "Command.h"

#include <new>

namespace tool {

CVendorInfoFile LoadFiles(const std::vector<std::string>& fileNames) {
  CVendorInfoFile vif;
  for (const std::string& fileName : fileNames) {
    if (fileName.empty()) throw Failure("a file name is empty");
    try {
      vif.Append(fileName.c_str());
    } catch (const std::bad_alloc&) {
      throw;
    } catch (const std::exception& error) {
      const std::string reason = error.what();
      if (reason.find(fileName) != std::string::npos) throw Failure(reason);
      throw Failure(std::string(fileName).append(": ").append(reason));
    }
  }
  return vif;
}

}  // namespace tool
