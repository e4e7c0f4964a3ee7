#include "Console.h"

#include <iostream>

namespace host {

void PrepareConsole() {}

bool ReadLine(std::string& line) { return static_cast<bool>(std::getline(std::cin, line)); }

}  // namespace host
