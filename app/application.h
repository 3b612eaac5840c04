#pragma once

namespace korvane::app {

// Runs the program from the font check to the release of the platform's libraries. `showCommand` is the SW_ value given
// to the process; the result is its exit code.
[[nodiscard]] int RunApplication(int showCommand);

} // namespace korvane::app
