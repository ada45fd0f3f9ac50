#pragma once

namespace CLI {
class App;
}

// Each adds a command to its group; it is carried out while the arguments are parsed, throws a
// UseError for what it cannot do, and leaves its exit code.
void AddLanguagePseudo(CLI::App& language, int& exitCode);
