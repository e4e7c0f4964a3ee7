#include "Errors.h"

#include "BaseUtilities/ThreadBuffer.h"

namespace vif {

namespace {

struct Messages;

}  // namespace

CSimpleBuffer& MessageBuffer() { return ThreadBuffer<Messages>(); }

}  // namespace vif
