// The option for the schemas of XML files.
#pragma once

namespace CLI {
class App;
}

namespace cli {

/// Adds `--schemas DIR` to a command. It takes effect before the command runs.
void AddSchemasOption(CLI::App& command);

}  // namespace cli
