#include "Errors.h"

namespace vif {

CSimpleBuffer& MessageBuffer() {
  thread_local CSimpleBuffer buffer;
  return buffer;
}

}  // namespace vif
