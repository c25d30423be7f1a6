// File, memory block, stream, picture object, bitmap: each step takes ownership of
// the result of the previous one.
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

// The content of the file as a movable memory block; null if it cannot be read.
GlobalBlock readFile(const std::string& path, DWORD& size) {
    const KernelHandle file = fileHandle(
        CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    size = file ? usableSize(file.get()) : 0;
    GlobalBlock block(size != 0 ? GlobalAlloc(GMEM_MOVEABLE, size) : nullptr);
    if (block && !readInto(block.get(), file.get(), size)) {
        block.reset();
    }
    return block;
}

ComPointer<IPicture> readPicture(const std::string& path) {
    DWORD size = 0;
    GlobalBlock block = readFile(path, size);
    ComPointer<IStream> stream;
    if (!block || FAILED(CreateStreamOnHGlobal(block.get(), TRUE, stream.receive()))) {
        return {};
    }
    static_cast<void>(block.release());  // the stream frees it
    void* picture = nullptr;
    const HRESULT result = OleLoadPicture(stream.get(), static_cast<LONG>(size), FALSE, IID_IPicture, &picture);
    return ComPointer<IPicture>(SUCCEEDED(result) ? static_cast<IPicture*>(picture) : nullptr);
}

// Null for an icon or a metafile.
HBITMAP bitmapOf(IPicture& picture) {
    SHORT type = PICTYPE_NONE;
    OLE_HANDLE handle = 0;
    if (FAILED(picture.get_Type(&type)) || type != PICTYPE_BITMAP || FAILED(picture.get_Handle(&handle))) {
        return nullptr;
    }
    // An OLE_HANDLE keeps the low 32 bits; a 64-bit handle is their sign extension.
    return reinterpret_cast<HBITMAP>(static_cast<LONG_PTR>(static_cast<LONG>(handle)));
}

}  // namespace

Bitmap loadPictureFile(const std::string& path, int& width, int& height) {
    width = height = 0;
    ComPointer<IPicture> picture = readPicture(path);
    const HBITMAP bitmap = picture ? bitmapOf(*picture.get()) : nullptr;
    BITMAP record{};
    if (bitmap == nullptr || GetObjectA(bitmap, sizeof record, &record) == 0) {
        return {};
    }
    width = record.bmWidth;
    height = record.bmHeight;
    // Intended: the picture object is never released. It would delete the bitmap, and cannot be told not to. It costs a
    // few bytes for each picture, of which the program loads one.
    static_cast<void>(picture.detach());
    return Bitmap(bitmap);
}

}  // namespace korvane
