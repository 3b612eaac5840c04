#pragma once

#include <array>
#include <string_view>

#include "res/ids.h"

namespace korvane::app {

enum class StandardFolder { kNone, kDocuments, kProgramFiles };

// A program of Windows in the main menu.
struct BuiltInProgram {
    unsigned command;
    std::wstring_view file;
    unsigned parametersId; // of the string table; 0 for none
    StandardFolder workingFolder;
    // Where its picture in the menu comes from; the file is named from the folder.
    StandardFolder iconFolder;
    std::wstring_view iconFile;
    int iconIndex;
};

// The command prompt alone starts in the program files folder; that is on purpose. Wordpad is not on the search path,
// and what is called Windows Update has no icon of its own.
// clang-format off
inline constexpr std::array kBuiltInPrograms{
    BuiltInProgram{ID_NOTEPAD,        L"notepad.exe",  0, StandardFolder::kDocuments, StandardFolder::kNone, L"notepad.exe",  0},
    BuiltInProgram{ID_PAINT,          L"mspaint.exe",  0, StandardFolder::kDocuments, StandardFolder::kNone, L"mspaint.exe",  0},
    BuiltInProgram{ID_CALCULATOR,     L"calc.exe",     0, StandardFolder::kDocuments, StandardFolder::kNone, L"calc.exe",     0},
    BuiltInProgram{ID_COMMAND_PROMPT, L"cmd.exe",      IDS_COMMAND_PROMPT_PARAMETERS,
                                                          StandardFolder::kProgramFiles, StandardFolder::kNone, L"cmd.exe",   0},
    BuiltInProgram{ID_EXPLORER,       L"explorer.exe", 0, StandardFolder::kDocuments, StandardFolder::kNone, L"explorer.exe", 0},
    BuiltInProgram{ID_WORDPAD,        L"wordpad.exe",  0, StandardFolder::kDocuments,
                                                  StandardFolder::kProgramFiles, L"Windows NT\\Accessories\\wordpad.exe",     0},
    BuiltInProgram{ID_WINDOWS_UPDATE, L"wuapp.exe",    0, StandardFolder::kDocuments, StandardFolder::kNone, L"shell32.dll", 46},
};
// clang-format on

// Null for a command that is none of them.
[[nodiscard]] constexpr const BuiltInProgram* BuiltInProgramOf(unsigned command) {
    for (const BuiltInProgram& program : kBuiltInPrograms)
        if (program.command == command) return &program;
    return nullptr;
}

} // namespace korvane::app
