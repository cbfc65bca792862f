// SPDX-License-Identifier: MIT
#include "Preset/XBF.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>
#ifdef _WIN32
#include <filesystem>
#endif

namespace {

constexpr std::size_t kSmall = 1024;  // bytes that are read first and asked about later

using Byte = unsigned char;

// Little-endian numbers

void put(Byte* out, std::uint64_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        out[i] = static_cast<Byte>(value >> (8 * i));
    }
}

std::uint64_t get(const Byte* in, int bytes) {
    std::uint64_t value = 0;
    for (int i = 0; i < bytes; ++i) {
        value |= std::uint64_t{in[i]} << (8 * i);
    }
    return value;
}

std::uint32_t get32(const Byte* in) {
    return static_cast<std::uint32_t>(get(in, 4));
}

std::int32_t getSigned32(const Byte* in) {
    return static_cast<std::int32_t>(get32(in));
}

std::int16_t getSigned16(const Byte* in) {
    return static_cast<std::int16_t>(get(in, 2));
}

// Deliberate: bytes that the type does not name, a text's pointer among them, go out as they lie in memory.
void encodeInline(std::uint32_t type, const _XBFParamValue& value, Byte* out) {
    std::memcpy(out, &value, kXBFInlineSize);
    switch (type) {
        case kXBFInt:
            put(out, static_cast<std::uint32_t>(value.intValue), 4);
            break;
        case kXBFFloat:
            put(out, std::bit_cast<std::uint32_t>(value.floatValue), 4);
            break;
        case kXBFDouble:
            put(out, std::bit_cast<std::uint64_t>(value.doubleValue), 8);
            break;
        case kXBFColor:
            put(out, static_cast<std::uint16_t>(value.colorValue.r), 2);
            put(out + 2, static_cast<std::uint16_t>(value.colorValue.g), 2);
            put(out + 4, static_cast<std::uint16_t>(value.colorValue.b), 2);
            put(out + 6, static_cast<std::uint16_t>(value.colorValue.a), 2);
            break;
        case kXBFData:
            put(out, static_cast<std::uint32_t>(value.textureValue.size.width), 4);
            put(out + 4, static_cast<std::uint32_t>(value.textureValue.size.height), 4);
            put(out + 8, static_cast<std::uint32_t>(value.textureValue.depth), 4);
            break;
        default:
            break;
    }
}

// The file's bytes never become a pointer.
_XBFParamValue decodeInline(std::int32_t type, const Byte* in) {
    _XBFParamValue value{};
    std::memset(&value, 0, sizeof value);
    switch (type) {
        case kXBFInt:
            value.intValue = getSigned32(in);
            break;
        case kXBFFloat:
            value.floatValue = std::bit_cast<float>(get32(in));
            break;
        case kXBFDouble:
            value.doubleValue = std::bit_cast<double>(get(in, 8));
            break;
        case kXBFColor:
            value.colorValue = {getSigned16(in), getSigned16(in + 2), getSigned16(in + 4),
                                getSigned16(in + 6)};
            break;
        case kXBFText:
            value.textValue = nullptr;
            break;
        case kXBFData:
            value.textureValue.size.width = getSigned32(in);
            value.textureValue.size.height = getSigned32(in + 4);
            value.textureValue.depth = getSigned32(in + 8);
            value.textureValue.data = nullptr;
            break;
        default:
            std::memcpy(&value, in, kXBFInlineSize);
            break;
    }
    return value;
}

// Reading

XBFRead read(std::FILE* file, void* out, std::size_t size) {
    if (std::fread(out, 1, size, file) == size) {
        return XBFRead::ok;
    }
    return std::ferror(file) ? XBFRead::failed : XBFRead::cutShort;
}

// The first bytes of a piece, so that nothing at all is told from too little.
XBFRead readFirst(std::FILE* file, void* out, std::size_t size) {
    const std::size_t got = std::fread(out, 1, size, file);
    if (got == size) {
        return XBFRead::ok;
    }
    if (std::ferror(file)) {
        return XBFRead::failed;
    }
    return got == 0 ? XBFRead::endOfFile : XBFRead::cutShort;
}

// Bytes from here to the end of the stream, or -1 when it cannot tell.
std::int64_t remaining(std::FILE* file) {
    const long here = std::ftell(file);
    if (here < 0 || std::fseek(file, 0, SEEK_END) != 0) {
        return -1;
    }
    const long end = std::ftell(file);
    if (end < 0 || std::fseek(file, here, SEEK_SET) != 0) {
        return -1;
    }
    return std::max(end - here, 0L);
}

XBFRead checkRemaining(std::FILE* file, std::int64_t size) {
    const std::int64_t left = remaining(file);
    if (left < 0) {
        return XBFRead::failed;
    }
    return size > left ? XBFRead::tooLong : XBFRead::ok;
}

// A block of `size` bytes and a NUL behind it, or an error and no block. A small block is read before its
// memory is asked for: looking for the end of the file costs more than that.
XBFRead readBlock(std::FILE* file, std::int64_t size, char** block) {
    char small[kSmall];
    const std::size_t length = static_cast<std::size_t>(size);
    const bool isSmall = size <= static_cast<std::int64_t>(kSmall);
    XBFRead result = isSmall ? read(file, small, length) : checkRemaining(file, size);
    if (result == XBFRead::cutShort) {
        result = XBFRead::tooLong;
    }
    if (result != XBFRead::ok) {
        return result;
    }
    char* bytes = static_cast<char*>(std::malloc(length + 1));
    if (!bytes) {
        return XBFRead::noMemory;
    }
    if (isSmall) {
        std::memcpy(bytes, small, length);
    } else if (result = read(file, bytes, length); result != XBFRead::ok) {
        std::free(bytes);
        return result;
    }
    bytes[length] = 0;
    *block = bytes;
    return XBFRead::ok;
}

XBFRead skip(std::FILE* file, std::int64_t size) {
    if (size <= static_cast<std::int64_t>(kSmall)) {
        char ignored[kSmall];
        const XBFRead result = read(file, ignored, static_cast<std::size_t>(size));
        return result == XBFRead::cutShort ? XBFRead::tooLong : result;
    }
    const XBFRead result = checkRemaining(file, size);
    if (result != XBFRead::ok) {
        return result;
    }
    return std::fseek(file, static_cast<long>(size), SEEK_CUR) == 0 ? XBFRead::ok : XBFRead::failed;
}

XBFRead readMethod(std::FILE* file, std::int32_t length, char* name) {
    const std::int32_t kept = std::clamp<std::int32_t>(length, 0, kXBFMaxMethodLength);
    const XBFRead result = read(file, name, static_cast<std::size_t>(kept));
    name[kept] = 0;
    return result == XBFRead::ok && length > kept ? skip(file, length - kept) : result;
}

// With `block`, reads what follows the inline value into it; without, goes past it.
XBFRead readPayload(std::FILE* file, const _XBFParamData& data, char** block) {
    std::int64_t size = 0;
    if (data.type == kXBFData) {
        size = XBFDataSize(data.value.textureValue);
        if (size < 0) {
            return XBFRead::badSize;
        }
    } else if (data.type == kXBFText) {
        Byte length[4];
        const XBFRead result = read(file, length, sizeof length);
        size = getSigned32(length);
        if (result != XBFRead::ok || size <= 0) {
            return result;
        }
    } else {
        return XBFRead::ok;
    }
    return block ? readBlock(file, size, block) : skip(file, size);
}

XBFRead readRecord(std::FILE* file, _XBFParamData& data, bool withPayload) {
    Byte start[8];
    Byte rest[4 + kXBFInlineSize];
    XBFRead result = readFirst(file, start, sizeof start);
    if (result == XBFRead::ok) {
        data.id = getSigned32(start);
        result = readMethod(file, getSigned32(start + 4), data.name);
    }
    if (result == XBFRead::ok) {
        result = read(file, rest, sizeof rest);
    }
    if (result != XBFRead::ok) {
        return result;
    }
    data.type = getSigned32(rest);
    data.value = decodeInline(data.type, rest + 4);
    // The terminator's payload, which nobody would own, is only gone past.
    char* block = nullptr;
    result = readPayload(file, data, withPayload && data.id != 0 ? &block : nullptr);
    if (data.type == kXBFText) {
        data.value.textValue = block;
    } else if (data.type == kXBFData) {
        data.value.textureValue.data = block;
    }
    return result == XBFRead::ok && data.id == 0 ? XBFRead::terminator : result;
}

XBFRead nextRecord(std::FILE* file, _XBFParamData* data, bool withPayload) {
    std::memset(data, 0, sizeof *data);
    const XBFRead result = file ? readRecord(file, *data, withPayload) : XBFRead::failed;
    if (result != XBFRead::ok) {
        std::memset(data, 0, sizeof *data);
    }
    return result;
}

std::FILE* openFile(const char* path, const char* mode) {
    if (!path) {
        std::printf("filename not NULL!");
        return nullptr;
    }
#ifdef _WIN32
    // There fopen() takes a path in the system's code page.
    const std::filesystem::path wide(reinterpret_cast<const char8_t*>(path));
    std::FILE* file = _wfopen(wide.c_str(), std::filesystem::path(mode).c_str());
#else
    std::FILE* file = std::fopen(path, mode);
#endif
    if (!file) {
        const int error = errno;
        std::printf("Open file(%s) error!", path);
        errno = error;  // which the caller may want to tell
    }
    return file;
}

void write(std::FILE* file, const void* bytes, std::size_t size) {
    if (size > 0) {
        std::fwrite(bytes, 1, size, file);
    }
}

// A length in front of bytes; false when it does not fit into 31 bits.
bool lengthFits(std::size_t length) {
    return length <= static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());
}

void writeLength(std::FILE* file, std::size_t length) {
    Byte bytes[4];
    put(bytes, length, 4);
    write(file, bytes, sizeof bytes);
}

// What must hold of a file of another kind: its brushes have room, and the first one can be one.
bool firstBrushMakesSense(std::FILE* file, std::int32_t count) {
    constexpr std::int64_t kLeastBrush = 4 + 8 + 4 + kXBFInlineSize;  // an empty name and a terminator
    const std::int64_t left = remaining(file);
    if (count <= 0) {
        return left == 0;
    }
    Byte length[4];
    if (count > left / kLeastBrush || read(file, length, sizeof length) != XBFRead::ok) {
        return false;
    }
    const std::int32_t name = getSigned32(length);
    Byte start[8];
    if (name < 0 || skip(file, name) != XBFRead::ok || read(file, start, sizeof start) != XBFRead::ok) {
        return false;
    }
    const std::int32_t method = getSigned32(start + 4);
    Byte type[4];
    if (method < 0 || method > static_cast<std::int32_t>(kXBFMaxMethodLength) ||
        skip(file, method) != XBFRead::ok || read(file, type, sizeof type) != XBFRead::ok) {
        return false;
    }
    const std::uint32_t code = get32(type);
    return get32(start) == 0 ? code == 0 : code >= kXBFBool && code <= kXBFData;
}

}  // namespace

std::FILE* XBFCreate(const char* path) {
    return openFile(path, "w+b");
}

std::FILE* XBFOpen(const char* path) {
    return openFile(path, "rb");
}

bool AddXBFInfo(std::FILE* file, XBFInfo info) {
    if (!file) {
        return false;
    }
    Byte bytes[kXBFHeaderSize];
    put(bytes, info.versionAndKind, 8);
    put(bytes + 8, info.count, 4);
    std::fseek(file, 0, SEEK_SET);
    write(file, bytes, sizeof bytes);
    return true;
}

bool AddBrushName(std::FILE* file, const char* name) {
    const std::size_t length = name ? std::strlen(name) : 0;
    if (!file || !lengthFits(length)) {
        return false;
    }
    writeLength(file, length);
    write(file, name, length);
    return true;
}

bool AddValue(std::FILE* file, std::uint32_t id, const char* method, std::uint32_t type,
              _XBFParamValue value) {
    if (!file) {
        return false;
    }
    const char* payload = nullptr;
    std::size_t size = 0;
    if (type == kXBFData) {
        payload = value.textureValue.data;
        const std::int64_t product = XBFDataSize(value.textureValue);
        if (product < 0 || (product > 0 && !payload)) {
            return false;
        }
        size = static_cast<std::size_t>(product);
    } else if (type == kXBFText) {
        payload = value.textValue;
        size = payload ? std::strlen(payload) : 0;
        if (!lengthFits(size)) {
            return false;
        }
    }

    Byte bytes[4 + kXBFInlineSize];
    put(bytes, id, 4);
    write(file, bytes, 4);
    const std::size_t methodLength = method ? std::min(std::strlen(method), kXBFMaxMethodLength) : 0;
    writeLength(file, methodLength);
    write(file, method, methodLength);
    put(bytes, type, 4);
    encodeInline(type, value, bytes + 4);
    write(file, bytes, sizeof bytes);
    if (type == kXBFText) {
        writeLength(file, size);
    }
    write(file, payload, size);
    return true;
}

const char* XBFReadText(XBFRead read) {
    switch (read) {
        case XBFRead::ok:
            return "it was read";
        case XBFRead::terminator:
            return "the brush ends";
        case XBFRead::endOfFile:
            return "the file ends before it";
        case XBFRead::cutShort:
            return "the file ends inside it";
        case XBFRead::tooLong:
            return "it claims more bytes than the file holds";
        case XBFRead::badSize:
            return "its size is not possible";
        case XBFRead::noMemory:
            return "there is not enough memory for it";
        case XBFRead::tooMany:
            return "there are more than a brush file may have";
        case XBFRead::failed:
            return "the file cannot be read";
    }
    return "";
}

XBFInfo ReadXBFInfo(std::FILE* file) {
    XBFInfo info;
    TryReadXBFInfo(file, &info);
    return info;
}

XBFRead TryReadXBFInfo(std::FILE* file, XBFInfo* info) {
    Byte bytes[kXBFHeaderSize] = {};
    XBFRead result = XBFRead::failed;
    if (file && std::fseek(file, 0, SEEK_SET) == 0) {
        result = readFirst(file, bytes, sizeof bytes);
    }
    info->versionAndKind = get(bytes, 8);
    info->count = get32(bytes + 8);
    return result;
}

char* ReadBrushName(std::FILE* file) {
    char* name = nullptr;
    TryReadBrushName(file, &name);
    return name;
}

XBFRead TryReadBrushName(std::FILE* file, char** name) {
    *name = nullptr;
    Byte length[4];
    const XBFRead result = file ? readFirst(file, length, sizeof length) : XBFRead::failed;
    if (result != XBFRead::ok || getSigned32(length) < 1) {
        return result;
    }
    return readBlock(file, getSigned32(length), name);
}

_XBFParamData NextParamData(std::FILE* file) {
    _XBFParamData data;
    nextRecord(file, &data, true);
    if (!file) {
        // Deliberate: callers know a missing stream by this id.
        data.id = 0x30303030;
    }
    return data;
}

XBFRead TryNextParamData(std::FILE* file, _XBFParamData* data) {
    return nextRecord(file, data, true);
}

XBFRead TrySkipParamData(std::FILE* file, _XBFParamData* data) {
    return nextRecord(file, data, false);
}

std::int64_t XBFDataSize(const _XBFTexture& texture) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    // Two factors cannot overflow; of the three, only the sign and the magnitude of the whole matter.
    const std::int64_t area = std::int64_t{texture.size.width} * texture.size.height;
    const std::int64_t depth = texture.depth;
    if (area == 0 || depth == 0) {
        return 0;
    }
    if ((area < 0) != (depth < 0) || std::abs(area) > kMost / std::abs(depth)) {
        return -1;
    }
    return area * depth;
}

void XBFFreeParamData(_XBFParamData* data) {
    if (data->type == kXBFText) {
        std::free(data->value.textValue);
        data->value.textValue = nullptr;
    } else if (data->type == kXBFData) {
        std::free(data->value.textureValue.data);
        data->value.textureValue.data = nullptr;
    }
}

int XBFClose(std::FILE* file) {
    return file ? std::fclose(file) : EOF;
}

bool XBFLooksRight(std::FILE* file) {
    XBFInfo info;
    if (!file) {
        return false;
    }
    const bool right =
        TryReadXBFInfo(file, &info) == XBFRead::ok &&
        (info.kind() == kXBFKind || firstBrushMakesSense(file, static_cast<std::int32_t>(info.count)));
    std::fseek(file, 0, SEEK_SET);
    return right;
}
