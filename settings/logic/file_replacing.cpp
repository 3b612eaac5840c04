#include "settings/logic/file_replacing.h"

namespace korvane::settings {
namespace {

std::wstring BesideOf(const std::wstring& path) {
    return path + L".tmp";
}

unsigned long PutInPlace(FileOperations& files, const std::wstring& path, const std::wstring& written) {
    // Only the way that needs an old file keeps that one's rights. It fails on some disks that are not Windows' own.
    const bool wasThere = files.Exists(path);
    unsigned long error = wasThere ? files.Replace(path, written) : 0;
    if (wasThere && error == 0) return 0;
    const unsigned long moveError = files.MoveOver(written, path);
    if (moveError == 0) return 0;
    if (!wasThere) error = moveError;
    // The replacing can fail when the old file is already gone. Then what was written is all that there is.
    if (!wasThere || files.Exists(path)) static_cast<void>(files.Delete(written));
    return error;
}

} // namespace

unsigned long ReplaceContent(FileOperations& files, const std::wstring& path, std::string_view bytes) {
    const std::wstring beside = BesideOf(path);
    if (const unsigned long error = files.WriteNew(beside, bytes)) {
        static_cast<void>(files.Delete(beside));
        return error;
    }
    return PutInPlace(files, path, beside);
}

unsigned long ReplaceByCopy(FileOperations& files, const std::wstring& path, const std::wstring& original) {
    const std::wstring beside = BesideOf(path);
    if (const unsigned long error = files.CopyNew(original, beside)) {
        static_cast<void>(files.Delete(beside));
        return error;
    }
    return PutInPlace(files, path, beside);
}

} // namespace korvane::settings
