#include "rules/Rule.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

namespace {

constexpr Edition kEvery = {};

// A rule that keeps silent about what another one has found comes after it.
constexpr Rule kRules[] = {
    // Values and their texts.
    {{"unanswered", Severity::Error, kEvery, Confidence::High, "S8", "a field that is still the editor's \"<select>\"",
      "The editor that wrote the file has offered a choice that nobody has made. The field has a number all the same, "
      "which stands for no answer. Choose the value that holds for the product."},
     CheckUnanswered},

    // PDO lists.

    // Power ratings.
    {{"pdo-above-rating", Severity::Error, kEvery, Confidence::High, "S1, S8, S13",
      "a PDO of more power than the port's rating",
      "PD_Power_As_Source and PD_Power_As_Sink are the power of the greatest PDO of their side, so none can be of "
      "more. "
      "Correct the rating, or the voltage, current or power of the PDO. An augmented PDO may exceed the rating: its "
      "limits of voltage and current do not hold at once."},
     CheckPdoAboveRating},

    // Power and Type-C roles.

    // Data roles.

    // Alternate modes.

    // Discover Identity and announced details.

    // PD revision.

    // Ports of one product.

    // Battery, supply, BC 1.2.

    // USB4.

    // Kind of product.

    // VCONN and cable.

    // Notes.
};

}  // namespace

std::span<const Rule> ConsistencyRules() { return kRules; }

}  // namespace vifanalysis
