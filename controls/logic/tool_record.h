#pragma once

namespace korvane::controls {

// Bytes of the record that describes a tool to a tooltip control. Its last pointer came with Windows Vista's control;
// older ones refuse a record that has it. 48 and 44 in a 32-bit program.
[[nodiscard]] constexpr unsigned ToolRecordSize(bool vista, unsigned fullBytes, unsigned pointerBytes) {
    return vista ? fullBytes : fullBytes - pointerBytes;
}

} // namespace korvane::controls
