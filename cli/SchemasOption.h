// Where the schemas are that XML files are held against.
#pragma once

namespace CLI {
class App;
}

namespace cli {

/// Adds `--schemas DIR` to a command that reads files. It takes effect before the command runs.
void AddSchemasOption(CLI::App& command);

}  // namespace cli
