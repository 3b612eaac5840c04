#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "tests/support/icon_file.h"

namespace korvane::test {

// The bytes of a library that holds nothing but icons of one colour each, in that order; the first has the resource
// identifier `firstId` and the others follow on.
class IconLibrary {
public:
    explicit IconLibrary(std::span<const COLORREF> colours, std::uint32_t firstId = 1)
        : count_{static_cast<std::uint32_t>(colours.size())} {
        // A tree of directories by type, identifier and language, then where the data stands, then the data.
        const std::uint32_t typesEnd = kDirectory + 2 * kEntry;
        const std::uint32_t iconNames = typesEnd;
        const std::uint32_t groupNames = iconNames + kDirectory + count_ * kEntry;
        const std::uint32_t languages = groupNames + kDirectory + count_ * kEntry;
        const std::uint32_t places = languages + 2 * count_ * (kDirectory + kEntry);
        const std::uint32_t data = places + 2 * count_ * kPlace;

        Directory({{kIconType, iconNames | kSubdirectory}, {kGroupType, groupNames | kSubdirectory}});
        for (std::uint32_t type = 0; type < 2; ++type) {
            DirectoryHead(count_);
            for (std::uint32_t i = 0; i < count_; ++i)
                Put({{type == 0 ? i + 1 : firstId + i, 4},
                     {(languages + (type * count_ + i) * (kDirectory + kEntry)) | kSubdirectory, 4}});
        }
        for (std::uint32_t i = 0; i < 2 * count_; ++i) Directory({{0, places + i * kPlace}});

        std::string icons;
        std::string groups;
        for (std::uint32_t i = 0; i < count_; ++i) {
            const std::string picture = IconFile(colours[i]).substr(kFileHead);
            Place(data + static_cast<std::uint32_t>(icons.size()), picture.size());
            icons += picture;
        }
        for (std::uint32_t i = 0; i < count_; ++i) {
            Place(data + static_cast<std::uint32_t>(icons.size() + groups.size()), kGroupBytes);
            groups += Group(i + 1);
        }
        resources_ += icons + groups;
    }

    [[nodiscard]] std::string Bytes() const {
        constexpr std::uint32_t kFileBlock = 0x200;
        const auto size = static_cast<std::uint32_t>(resources_.size());
        const std::uint32_t padded = (size + kFileBlock - 1) / kFileBlock * kFileBlock;
        const std::uint32_t imageEnd = kBase + (size + 0xFFF) / 0x1000 * 0x1000;
        std::string bytes = "MZ";
        bytes.resize(60, '\0');
        const auto put = [&bytes](std::initializer_list<std::pair<std::uint32_t, int>> numbers) {
            for (const auto& [number, width] : numbers) AppendNumber(bytes, number, width);
        };
        put({{64, 4}});
        bytes.append("PE\0\0", 4);
        // A library for 32-bit Intel processors with one section.
        put({{0x14C, 2}, {1, 2}, {0, 4}, {0, 4}, {0, 4}, {224, 2}, {0x2102, 2}});
        put({{0x10B, 2}, {0, 2}, {0, 4}, {padded, 4}, {0, 4}, {0, 4}, {kBase, 4}, {kBase, 4}});
        put({{0x10000000, 4}, {0x1000, 4}, {kFileBlock, 4}, {4, 2}, {0, 2}, {0, 4}, {4, 2}, {0, 2}, {0, 4}});
        put({{imageEnd, 4}, {kFileBlock, 4}, {0, 4}, {2, 2}, {0, 2}, {0x100000, 4}, {0x1000, 4}, {0x100000, 4}});
        put({{0x1000, 4}, {0, 4}, {16, 4}, {0, 4}, {0, 4}, {0, 4}, {0, 4}, {kBase, 4}, {size, 4}});
        bytes.append(13 * 8, '\0');
        bytes.append(".rsrc\0\0\0", 8);
        put({{size, 4}, {kBase, 4}, {padded, 4}, {kFileBlock, 4}, {0, 4}, {0, 4}, {0, 4}, {0x40000040, 4}});
        bytes.resize(kFileBlock, '\0');
        bytes += resources_;
        bytes.resize(kFileBlock + padded, '\0');
        return bytes;
    }

private:
    static constexpr std::uint32_t kBase = 0x1000; // where the section lies in memory
    static constexpr std::uint32_t kDirectory = 16;
    static constexpr std::uint32_t kEntry = 8;
    static constexpr std::uint32_t kPlace = 16;
    static constexpr std::uint32_t kSubdirectory = 0x80000000;
    static constexpr std::uint32_t kIconType = 3;
    static constexpr std::uint32_t kGroupType = 14;
    static constexpr std::uint32_t kGroupBytes = 20;
    static constexpr std::size_t kFileHead = 22;

    void Put(std::initializer_list<std::pair<std::uint32_t, int>> numbers) {
        for (const auto& [number, width] : numbers) AppendNumber(resources_, number, width);
    }
    void DirectoryHead(std::uint32_t entries) { Put({{0, 4}, {0, 4}, {0, 4}, {0, 2}, {entries, 2}}); }
    void Directory(std::initializer_list<std::pair<std::uint32_t, std::uint32_t>> entries) {
        DirectoryHead(static_cast<std::uint32_t>(entries.size()));
        for (const auto& [id, target] : entries) Put({{id, 4}, {target, 4}});
    }
    void Place(std::uint32_t at, std::size_t size) {
        Put({{kBase + at, 4}, {static_cast<std::uint32_t>(size), 4}, {0, 4}, {0, 4}});
    }
    static std::string Group(std::uint32_t iconId) {
        constexpr std::uint32_t kSide = kTestIconSidePx;
        constexpr std::uint32_t kPictureBytes = 40 + kSide * kSide * 4 + kSide * 4;
        std::string bytes;
        for (const auto& [number, width] : std::initializer_list<std::pair<std::uint32_t, int>>{{0, 2},
                                                                                                {1, 2},
                                                                                                {1, 2},
                                                                                                {kSide, 1},
                                                                                                {kSide, 1},
                                                                                                {0, 2},
                                                                                                {1, 2},
                                                                                                {32, 2},
                                                                                                {kPictureBytes, 4},
                                                                                                {iconId, 2}})
            AppendNumber(bytes, number, width);
        return bytes;
    }

    std::uint32_t count_;
    std::string resources_;
};

} // namespace korvane::test
