#pragma once

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <concepts>
#include <cstdint>
#include <optional>
#include <tuple>
#include <type_traits>

// Maps messages to member functions at compile time. A handler returns void (done, result 0), a value (the result), or
// fw::Reply, whose empty value hands the message to the next entry and at last to the default procedure. "Handled"
// travels in the return value and never in the object, so nested messages and a handler that destroys its object are
// harmless.
namespace fw {

struct Message {
    HWND window;
    UINT id;
    WPARAM wparam;
    LPARAM lparam;
    // A notification that the parent hands back to the child that caused it. It is called and never sent: a number of
    // its own could be sent by anyone, with anything for a pointer.
    bool reflected = false;
};

using Reply = std::optional<LRESULT>;
inline constexpr std::nullopt_t kPassOn = std::nullopt;

// Arguments<Id>::From turns wparam and lparam into what a handler of Id takes. Without a specialisation the handler
// gets the raw message; any handler may ask for that by taking a const Message&.
template <UINT Id>
struct Arguments {
    static std::tuple<const Message&> From(const Message& m) { return {m}; }
};

struct NoArguments {
    static std::tuple<> From(const Message&) { return {}; }
};

template <class Data>
struct PointerArgument {
    static std::tuple<Data&> From(const Message& m) { return {*reinterpret_cast<Data*>(m.lparam)}; }
};

// clang-format off
template <> struct Arguments<WM_CREATE>         : PointerArgument<const CREATESTRUCTW> {};
template <> struct Arguments<WM_DRAWITEM>       : PointerArgument<const DRAWITEMSTRUCT> {};
template <> struct Arguments<WM_MEASUREITEM>    : PointerArgument<MEASUREITEMSTRUCT> {};
template <> struct Arguments<WM_GETMINMAXINFO>  : PointerArgument<MINMAXINFO> {};
template <> struct Arguments<WM_DESTROY>        : NoArguments {};
template <> struct Arguments<WM_CLOSE>          : NoArguments {};
template <> struct Arguments<WM_THEMECHANGED>   : NoArguments {};
template <> struct Arguments<WM_MOUSELEAVE>     : NoArguments {};
template <> struct Arguments<WM_DWMCOLORIZATIONCOLORCHANGED> : NoArguments {};
// clang-format on

template <>
struct Arguments<WM_TIMER> {
    static std::tuple<UINT_PTR> From(const Message& m) { return {m.wparam}; }
};
template <>
struct Arguments<WM_HOTKEY> {
    static std::tuple<int> From(const Message& m) { return {static_cast<int>(m.wparam)}; }
};
template <>
struct Arguments<WM_SHOWWINDOW> {
    static std::tuple<bool> From(const Message& m) { return {m.wparam != 0}; }
};
template <>
struct Arguments<WM_ENDSESSION> {
    static std::tuple<bool> From(const Message& m) { return {m.wparam != 0}; }
};
// A handler of WM_SIZE takes the kind of sizing and the client area's new extent in pixels.
template <>
struct Arguments<WM_SIZE> {
    static std::tuple<UINT, SIZE> From(const Message& m) {
        return {static_cast<UINT>(m.wparam), SIZE{LOWORD(m.lparam), HIWORD(m.lparam)}};
    }
};
template <>
struct Arguments<WM_ERASEBKGND> {
    static std::tuple<HDC> From(const Message& m) { return {reinterpret_cast<HDC>(m.wparam)}; }
};
template <>
struct Arguments<WM_INITDIALOG> {
    static std::tuple<HWND> From(const Message& m) { return {reinterpret_cast<HWND>(m.wparam)}; }
};
// The low word of the activation, then whether the window is minimised.
template <>
struct Arguments<WM_ACTIVATE> {
    static std::tuple<UINT, bool> From(const Message& m) { return {LOWORD(m.wparam), HIWORD(m.wparam) != 0}; }
};

// The colour depth in bits per pixel, then the screen's new extent in pixels.
template <>
struct Arguments<WM_DISPLAYCHANGE> {
    static std::tuple<UINT, SIZE> From(const Message& m) {
        return {static_cast<UINT>(m.wparam), SIZE{LOWORD(m.lparam), HIWORD(m.lparam)}};
    }
};

// Client coordinates are signed: with the mouse captured they may lie left of or above the window.
struct MouseArguments {
    static std::tuple<UINT, POINT> From(const Message& m) {
        return {static_cast<UINT>(m.wparam),
                POINT{static_cast<short>(LOWORD(m.lparam)), static_cast<short>(HIWORD(m.lparam))}};
    }
};
// clang-format off
template <> struct Arguments<WM_MOUSEMOVE>   : MouseArguments {};
template <> struct Arguments<WM_LBUTTONDOWN> : MouseArguments {};
template <> struct Arguments<WM_LBUTTONUP>   : MouseArguments {};
// clang-format on

enum class Kind : std::uint8_t { kMessage, kReflected, kCommand, kControl, kNotify, kChain };

// What an entry answers; two entries of one map may not overlap.
struct Key {
    Kind kind;
    UINT first;
    UINT last;
    UINT code;

    [[nodiscard]] constexpr bool Overlaps(const Key& other) const {
        return kind != Kind::kChain && kind == other.kind && code == other.code && first <= other.last &&
               other.first <= last;
    }
};

template <class Function, class... Args>
Reply Answer(Function&& function, Args&&... arguments) {
    using Result = std::invoke_result_t<Function, Args...>;
    if constexpr (std::is_void_v<Result>) {
        std::forward<Function>(function)(std::forward<Args>(arguments)...);
        return LRESULT{0};
    } else if constexpr (std::same_as<Result, Reply>) {
        return std::forward<Function>(function)(std::forward<Args>(arguments)...);
    } else if constexpr (std::is_pointer_v<Result>) {
        return reinterpret_cast<LRESULT>(std::forward<Function>(function)(std::forward<Args>(arguments)...));
    } else {
        return static_cast<LRESULT>(std::forward<Function>(function)(std::forward<Args>(arguments)...));
    }
}

template <Key K, UINT Id, class Owner, class Method>
struct MessageEntry {
    static constexpr Key key = K;
    Method method;

    Reply operator()(Owner& self, const Message& m) const {
        if (m.id != K.first || m.reflected != (K.kind == Kind::kReflected)) return kPassOn;
        if constexpr (std::is_invocable_v<Method, Owner&, const Message&>) {
            return Answer([&](const Message& message) -> decltype(auto) { return (self.*method)(message); }, m);
        } else {
            return std::apply(
                [&](auto&&... arguments) {
                    auto call = [&](auto&&... a) -> decltype(auto) {
                        return (self.*method)(static_cast<decltype(a)>(a)...);
                    };
                    return Answer(call, static_cast<decltype(arguments)>(arguments)...);
                },
                Arguments<Id>::From(m));
        }
    }
};

// A menu choice and BN_CLICKED have the code 0, an accelerator 1: all three mean "do it". A control that sends 1 says
// something else, such as CBN_SELCHANGE.
constexpr bool IsDoIt(UINT code, LPARAM control) {
    return code == 0 || (code == 1 && control == 0);
}

template <Key K, class Owner, class Method>
struct CommandEntry {
    static constexpr Key key = K;
    Method method;

    Reply operator()(Owner& self, const Message& m) const {
        if (m.id != WM_COMMAND || m.reflected) return kPassOn;
        const UINT id = LOWORD(m.wparam);
        const UINT code = HIWORD(m.wparam);
        if (id < K.first || id > K.last) return kPassOn;
        if (K.kind == Kind::kCommand ? !IsDoIt(code, m.lparam) : code != K.code) return kPassOn;
        auto call = [&](auto... arguments) -> decltype(auto) { return (self.*method)(arguments...); };
        if constexpr (std::is_invocable_v<Method, Owner&, UINT>) {
            return Answer(call, id);
        } else {
            return Answer(call);
        }
    }
};

template <Key K, class Data, class Owner, class Method>
struct NotifyEntry {
    static constexpr Key key = K;
    Method method;

    Reply operator()(Owner& self, const Message& m) const {
        if (m.id != WM_NOTIFY || m.reflected) return kPassOn;
        const auto& header = *reinterpret_cast<const NMHDR*>(m.lparam);
        if (header.idFrom != K.first || header.code != K.code) return kPassOn;
        auto call = [&](auto& data) -> decltype(auto) { return (self.*method)(data); };
        return Answer(call, *reinterpret_cast<Data*>(m.lparam));
    }
};

template <class Base>
struct ChainEntry {
    static constexpr Key key{Kind::kChain, 0, 0, 0};
    Reply operator()(Base& self, const Message& m) const {
        static constexpr auto map = Base::Messages();
        return map(self, m);
    }
};

template <UINT Id, class R, class Owner, class... A>
consteval auto On(R (Owner::*method)(A...)) {
    return MessageEntry<Key{Kind::kMessage, Id, Id, 0}, Id, Owner, R (Owner::*)(A...)>{method};
}
// A notification that came back from the parent.
template <UINT Id, class R, class Owner, class... A>
consteval auto OnReflected(R (Owner::*method)(A...)) {
    return MessageEntry<Key{Kind::kReflected, Id, Id, 0}, Id, Owner, R (Owner::*)(A...)>{method};
}
// A menu choice, an accelerator or a click. The handler takes the identifier or nothing.
template <UINT First, UINT Last = First, class R, class Owner, class... A>
consteval auto OnCommand(R (Owner::*method)(A...)) {
    static_assert(First <= Last);
    return CommandEntry<Key{Kind::kCommand, First, Last, 0}, Owner, R (Owner::*)(A...)>{method};
}
// A notification code of a control, such as EN_CHANGE.
template <UINT First, UINT Last, UINT Code, class R, class Owner, class... A>
consteval auto OnControl(R (Owner::*method)(A...)) {
    static_assert(First <= Last);
    return CommandEntry<Key{Kind::kControl, First, Last, Code}, Owner, R (Owner::*)(A...)>{method};
}
template <UINT Id, UINT Code, class R, class Owner, class Data>
consteval auto OnNotify(R (Owner::*method)(Data&)) {
    return NotifyEntry<Key{Kind::kNotify, Id, Id, Code}, Data, Owner, R (Owner::*)(Data&)>{method};
}
// The map of a base class or mix-in, asked when nothing before it answered.
template <class Base>
consteval auto Chain() {
    return ChainEntry<Base>{};
}

template <class... Entries>
class MessageMap {
public:
    consteval explicit MessageMap(Entries... entries) : entries_{entries...} {
        constexpr std::array<Key, sizeof...(Entries)> keys{Entries::key...};
        for (std::size_t i = 0; i < keys.size(); ++i)
            for (std::size_t j = i + 1; j < keys.size(); ++j)
                if (keys[i].Overlaps(keys[j])) throw "two entries of this message map answer the same message";
    }

    template <class Owner>
    Reply operator()(Owner& self, const Message& m) const {
        Reply reply;
        std::apply([&](const auto&... entry) { (void)((reply = entry(self, m)).has_value() || ...); }, entries_);
        return reply;
    }

private:
    std::tuple<Entries...> entries_;
};

} // namespace fw
