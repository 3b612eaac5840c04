// dock_bench SLIDES IDLE_SECONDS PROGRAM
// Starts the bar, whose settings must make it a docked one that hides itself, and watches it from outside: how often a
// slide moves it, the longest time in which a slide stands still, and the processor time that the hidden bar takes
// while nobody touches it.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "benchmarks/program_run.h"
#include "res/ids.h"

namespace {

using namespace korvane::bench;

constexpr int kBarHeightPx = 32;

RECT PlaceOf(HWND bar) {
    RECT place{};
    ::GetWindowRect(bar, &place);
    return place;
}

struct Slide {
    int steps = 0;
    double longestGapMs = 0;
    double lengthMs = 0;
};

// Watches the bar from the moment at which it begins to move until it has arrived. Until it begins it is caused to,
// again and again: the display server may still be carrying out an earlier move of the cursor.
Slide Watch(HWND bar, void (*cause)(HWND), bool (*arrived)(const RECT&)) {
    constexpr double kCauseAgain = 0.2; // seconds
    double causeAt = 0;
    Slide slide;
    RECT last = PlaceOf(bar);
    const double deadline = Seconds() + kDeadlineMs / 1000.0;
    double begun = 0;
    double moved = 0;
    for (;;) {
        const RECT place = PlaceOf(bar);
        const double now = Seconds();
        if (now > deadline) {
            std::fprintf(stderr, "the bar does not slide: it is at %ld-%ld\n", place.top, place.bottom);
            std::exit(1);
        }
        if (begun == 0 && now > causeAt) {
            cause(bar);
            causeAt = now + kCauseAgain;
        }
        if (::EqualRect(&place, &last)) continue;
        if (begun == 0) {
            begun = now;
        } else {
            slide.longestGapMs = std::max(slide.longestGapMs, (now - moved) * 1000);
        }
        ++slide.steps;
        moved = now;
        last = place;
        if (!arrived(place)) continue;
        slide.lengthMs = (now - begun) * 1000;
        return slide;
    }
}

void PressShowKey(HWND bar) {
    ::PostMessageW(bar, WM_HOTKEY, HOTKEY_SHOW_BAR, 0);
}
// The key leaves the cursor on the bar.
void TakeCursorAway(HWND) {
    ::SetCursorPos(400, 400);
}

bool WholeBar(const RECT& place) {
    return place.top == 0 && place.bottom == kBarHeightPx;
}
bool Strip(const RECT& place) {
    return place.bottom - place.top < kBarHeightPx;
}

void Print(const char* name, const std::vector<Slide>& slides) {
    std::vector<double> steps;
    std::vector<double> lengths;
    double gap = 0;
    double fewest = slides.front().steps;
    for (const Slide& slide : slides) {
        steps.push_back(slide.steps);
        lengths.push_back(slide.lengthMs);
        gap = std::max(gap, slide.longestGapMs);
        fewest = std::min(fewest, static_cast<double>(slide.steps));
    }
    std::printf("%-10s %2.0f steps (fewest %2.0f) in %5.1f ms   longest gap %5.1f ms\n", name, Median(steps), fewest,
                Median(lengths), gap);
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 4) {
        std::fprintf(stderr, "dock_bench SLIDES IDLE_SECONDS PROGRAM\n");
        return 2;
    }
    const int slides = std::max(1, static_cast<int>(std::wcstol(arguments[1], nullptr, 10)));
    const DWORD idleSeconds = std::wcstoul(arguments[2], nullptr, 10);

    const Run run{arguments[3], L"Korvane_WndClass"};
    const HWND bar = ::FindWindowW(L"Korvane_WndClass", nullptr);
    if (!Strip(PlaceOf(bar))) {
        std::fprintf(stderr, "the bar is not hidden\n");
        return 1;
    }

    std::vector<Slide> out;
    std::vector<Slide> in;
    for (int i = 0; i < slides; ++i) {
        out.push_back(Watch(bar, &PressShowKey, &WholeBar));
        in.push_back(Watch(bar, &TakeCursorAway, &Strip));
    }
    Print("slide out", out);
    Print("slide in", in);

    const double before = CpuMs(run.Process());
    ::Sleep(idleSeconds * 1000);
    std::printf("docked and hidden: processor %5.1f ms in %lu idle s\n", CpuMs(run.Process()) - before, idleSeconds);
    return 0;
}
