#include "Checks.h"

namespace suite {

namespace {

constexpr Check kChecks[] = {
    {"Source PDOs", "source PDOs", CheckSourcePdos},
    {"Number of source PDOs", "components with source PDOs", CheckSourcePdoCounts},
    {"Sink PDOs", "sink PDOs", CheckSinkPdos},
    {"Number of sink PDOs", "components with sink PDOs", CheckSinkPdoCounts},
    {"Number of PCIe endpoints", "USB4 routers", CheckEndpointCounts},
    {"USB4 router of a port", "components with a USB4 router", CheckRouterIndexes},
    {"SOP modes", "components with modal operation", CheckModes},
};

}  // namespace

std::span<const Check> AllChecks() { return kChecks; }

}  // namespace suite
