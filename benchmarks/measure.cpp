// measure RUNS IDLE_SECONDS PROGRAM CLASS [PROGRAM CLASS]...
// Starts each program RUNS times, in turns so that none has a warmer machine than the others, and prints a line for
// each: the median and worst time from process start until its window is painted, the median of its private memory, and
// the processor time that it takes while nobody touches it.
//
// "Painted" is when the window of that class is visible, its thread answers a message, which it does once it has drawn
// what it draws before its message loop, and neither the window nor any of its children has anything left to draw.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "benchmarks/program_run.h"

namespace {

using korvane::bench::CpuMs;
using korvane::bench::Median;
using korvane::bench::Run;

struct Program {
    std::wstring path;
    std::wstring windowClass;
    std::vector<double> paintedMs;
    std::vector<double> privateMegabytes;
    double idleCpuMs = 0;
};

double PrivateMegabytes(HANDLE process) {
    SIZE_T bytes = 0;
    MEMORY_BASIC_INFORMATION block{};
    for (const char* at = nullptr; ::VirtualQueryEx(process, at, &block, sizeof block) != 0;) {
        if (block.State == MEM_COMMIT && block.Type == MEM_PRIVATE) bytes += block.RegionSize;
        const char* const next = static_cast<const char*>(block.BaseAddress) + block.RegionSize;
        if (next <= at) break;
        at = next;
    }
    return static_cast<double>(bytes) / (1024 * 1024);
}

long long FileSize(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    ::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
    return (static_cast<long long>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 5 || count % 2 == 0) {
        std::fprintf(stderr, "measure RUNS IDLE_SECONDS PROGRAM CLASS [PROGRAM CLASS]...\n");
        return 2;
    }
    const int runs = std::max(1, static_cast<int>(std::wcstol(arguments[1], nullptr, 10)));
    const DWORD idleSeconds = std::wcstoul(arguments[2], nullptr, 10);
    std::vector<Program> programs;
    for (int i = 3; i + 1 < count; i += 2) programs.push_back({arguments[i], arguments[i + 1], {}, {}, 0});

    // The first start of each reads its files from the disk; it does not count.
    for (Program& program : programs) {
        const Run warmUp{program.path, program.windowClass};
    }
    for (int run = 0; run < runs; ++run) {
        for (Program& program : programs) {
            const Run measured{program.path, program.windowClass};
            program.paintedMs.push_back(measured.PaintedMs());
            program.privateMegabytes.push_back(PrivateMegabytes(measured.Process()));
        }
    }

    for (Program& program : programs) {
        const Run idle{program.path, program.windowClass};
        const double before = CpuMs(idle.Process());
        ::Sleep(idleSeconds * 1000);
        program.idleCpuMs = CpuMs(idle.Process()) - before;
    }

    for (const Program& program : programs) {
        const double worst = *std::max_element(program.paintedMs.begin(), program.paintedMs.end());
        std::printf("%-24ls painted after %6.1f ms (worst %6.1f)   private %6.2f MB   file %8lld bytes   "
                    "processor %5.1f ms in %lu idle s\n",
                    program.windowClass.c_str(), Median(program.paintedMs), worst, Median(program.privateMegabytes),
                    FileSize(program.path), program.idleCpuMs, idleSeconds);
    }
    return 0;
}
