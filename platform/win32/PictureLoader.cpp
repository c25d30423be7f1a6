// File, memory block, stream, picture object, bitmap: each step takes over
// what the one before it made.
#include "platform/win32/PictureLoader.h"

#include <ole2.h>
#include <olectl.h>

namespace korvane {
namespace {

DWORD usableSize(HANDLE file) {
    DWORD high = 0;
    const DWORD size = GetFileSize(file, &high);
    return high == 0 && size <= kLargestPictureFile ? size : 0;
}

bool readInto(HGLOBAL block, HANDLE file, DWORD size) {
    void* bytes = GlobalLock(block);
    if (bytes == nullptr) {
        return false;
    }
    DWORD got = 0;
    const bool isRead = ReadFile(file, bytes, size, &got, nullptr) && got == size;
    GlobalUnlock(block);
    return isRead;
}

// The file's content as a movable block; null when it cannot be read.
HGLOBAL readFile(const std::string& path, DWORD& size) {
    const HANDLE file =
        CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    size = usableSize(file);
    HGLOBAL block = size != 0 ? GlobalAlloc(GMEM_MOVEABLE, size) : nullptr;
    if (block != nullptr && !readInto(block, file, size)) {
        GlobalFree(block);
        block = nullptr;
    }
    CloseHandle(file);
    return block;
}

IPicture* readPicture(const std::string& path) {
    DWORD size = 0;
    const HGLOBAL block = readFile(path, size);
    if (block == nullptr) {
        return nullptr;
    }
    IStream* stream = nullptr;
    if (FAILED(CreateStreamOnHGlobal(block, TRUE, &stream))) {
        GlobalFree(block);
        return nullptr;
    }
    void* picture = nullptr;
    const HRESULT result = OleLoadPicture(stream, static_cast<LONG>(size), FALSE, IID_IPicture, &picture);
    stream->Release();  // and the block with it
    return SUCCEEDED(result) ? static_cast<IPicture*>(picture) : nullptr;
}

// Null for an icon or a metafile.
HBITMAP bitmapOf(IPicture& picture) {
    SHORT type = PICTYPE_NONE;
    OLE_HANDLE handle = 0;
    if (FAILED(picture.get_Type(&type)) || type != PICTYPE_BITMAP || FAILED(picture.get_Handle(&handle))) {
        return nullptr;
    }
    // An OLE_HANDLE has 32 bits; a handle of 64 bits is such a number with its sign.
    return reinterpret_cast<HBITMAP>(static_cast<LONG_PTR>(static_cast<LONG>(handle)));
}

}  // namespace

HBITMAP loadPictureFile(const std::string& path, int& width, int& height) {
    width = height = 0;
    IPicture* const picture = readPicture(path);
    if (picture == nullptr) {
        return nullptr;
    }
    const HBITMAP bitmap = bitmapOf(*picture);
    BITMAP record{};
    if (bitmap == nullptr || GetObjectA(bitmap, sizeof record, &record) == 0) {
        picture->Release();
        return nullptr;
    }
    width = record.bmWidth;
    height = record.bmHeight;
    // The picture object is never released: it owns the bitmap and would take it along, and the platform has no way to
    // take it out. What stays behind is a few bytes for each picture loaded, which is one in the life of the program.
    return bitmap;
}

}  // namespace korvane
