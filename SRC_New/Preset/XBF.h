// SPDX-License-Identifier: MIT
/// \file
/// The pieces of an XBF brush file, written and read one after another through stdio.
///
/// File     a header of 12 bytes (version, kind, number of brushes; u32 each), then for every brush its name
///          (i32 length, UTF-8 bytes), its parameter records and a terminator, which is a record of id 0. A
///          record is: u32 id, i32 length of the method name and its bytes, u32 type, 16 bytes of inline
///          value; a text is followed by an i32 length and its bytes, a data block by width x height x depth
///          bytes.
/// Bytes    little-endian whatever the machine. Bytes of an inline value that its type does not name mean
///          nothing: they are whatever the writer's value held there.
/// Streams  opened in binary mode, which differs where stdio has a text mode. Reading asks a stream for its
///          size, so it must be able to seek, as files and fmemopen() can. A stream is for one thread at a
///          time.
/// Limits   what a file claims is never believed: a length is checked against what the file still holds before
///          anything is allocated by it.
/// Errors   never throws. A NULL stream is refused by every function, each in its own way.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "Maths/Export.h"

/// The codes that tell how a value is stored. 4098 and 4099 are reserved and have no encoding.
enum XBFPropertyType : std::int32_t {
    kXBFBool = 4097,
    kXBFInt = 4100,
    kXBFFloat = 4101,
    kXBFDouble = 4102,
    kXBFColor = 4103,
    kXBFCharacter = 4104,
    kXBFText = 4105,
    kXBFData = 4106,
};

/// The header's kind, as written; reading does not ask for it.
inline constexpr std::uint32_t kXBFKind = 4097;
inline constexpr std::size_t kXBFHeaderSize = 12;       ///< bytes in a file
inline constexpr std::size_t kXBFInlineSize = 16;       ///< bytes of a value that a record carries
inline constexpr std::size_t kXBFMaxMethodLength = 39;  ///< bytes; what is longer is cut

/// The header of a file.
struct XBFInfo {
    std::uint64_t versionAndKind;  ///< version in the low 32 bits, kind in the high ones
    /// Of brushes. A file's is read as signed, and a negative one means none.
    std::uint32_t count;

    constexpr std::uint32_t version() const { return static_cast<std::uint32_t>(versionAndKind); }
    constexpr std::uint32_t kind() const { return static_cast<std::uint32_t>(versionAndKind >> 32); }
};

/// The header of a file that is to be written.
constexpr XBFInfo XBFInfoMake(std::uint32_t version, std::uint32_t count) {
    return {std::uint64_t{kXBFKind} << 32 | version, count};
}

/// A colour: components times 255; outside 0..255 only in files made elsewhere.
struct _RGBAType {
    short r, g, b, a;
};

/// Width and height of a data block, in its own unit.
struct _XBFSize {
    int width, height;
};

/// A data block, such as an image.
struct _XBFTexture {
    _XBFSize size;
    int depth;
    alignas(8) char* data;  ///< width x height x depth bytes; beyond what a record carries inline
};

/// One value; the record's type says which member.
union _XBFParamValue {
    char boolValue;
    char charValue;
    short shortValue;
    int intValue;
    float floatValue;
    double doubleValue;
    char* textValue;  ///< in the hexadecimal form, NUL-terminated
    _RGBAType colorValue;
    _XBFTexture textureValue;
};

/// One parameter record. Text and data that reading allocates belong to the caller: free(), or
/// XBFFreeParamData().
struct _XBFParamData {
    std::int32_t id;  ///< 0 ends a brush
    char name[kXBFMaxMethodLength + 1];
    std::int32_t type;
    _XBFParamValue value;
};

static_assert(offsetof(XBFInfo, count) == 8);
static_assert(sizeof(_RGBAType) == 8 && sizeof(_XBFSize) == 8);
static_assert(sizeof(_XBFTexture) == 24 && offsetof(_XBFTexture, depth) == 8 &&
              offsetof(_XBFTexture, data) == 16);
static_assert(sizeof(_XBFParamValue) == 24 && alignof(_XBFParamValue) == 8);
static_assert(sizeof(_XBFParamData) == 72 && offsetof(_XBFParamData, name) == 4 &&
              offsetof(_XBFParamData, type) == 44 && offsetof(_XBFParamData, value) == 48);

/// Opens a file for writing and reading, created or emptied, or an existing one for reading; `path` is UTF-8.
/// NULL with a message on standard output, which deliberately has no line end, when that fails.
DABCANVAS_CANVAS_API std::FILE* XBFCreate(const char* path);
DABCANVAS_CANVAS_API std::FILE* XBFOpen(const char* path);

/// Each writes one piece at the stream's place and answers true without looking at whether the disk took it:
/// ask ferror() and fclose(). False, and nothing written, for a NULL stream or a piece that the file cannot
/// hold: a name or text of 2 GiB, a data block whose size is negative, overflows or has no data.
/// The header goes to the start of the stream; NULL is the empty name.
DABCANVAS_CANVAS_API bool AddXBFInfo(std::FILE* file, XBFInfo info);
DABCANVAS_CANVAS_API bool AddBrushName(std::FILE* file, const char* name);
DABCANVAS_CANVAS_API bool AddValue(std::FILE* file, std::uint32_t id, const char* method, std::uint32_t type,
                                   _XBFParamValue value);

/// How reading a piece went.
enum class XBFRead : std::uint8_t {
    ok,
    terminator,  ///< the record that ends a brush
    endOfFile,   ///< nothing was left where the piece would begin
    cutShort,    ///< the file ends inside the piece
    tooLong,     ///< a length goes beyond the end of the file
    badSize,     ///< a data block's size is negative or overflows
    noMemory,
    tooMany,  ///< more pieces than a reader takes; none of these functions counts them
    failed,   ///< the stream reports an error, cannot seek, or is NULL
};
/// "the file ends inside it", say, to go into a message.
DABCANVAS_CANVAS_API const char* XBFReadText(XBFRead read);

/// The header, from the start of the stream. What the stream does not hold is 0.
DABCANVAS_CANVAS_API XBFInfo ReadXBFInfo(std::FILE* file);
DABCANVAS_CANVAS_API XBFRead TryReadXBFInfo(std::FILE* file, XBFInfo* info);

/// The brush's name, NUL-terminated, the caller's to free(). NULL is the empty name, and in the first form
/// also one that could not be read.
DABCANVAS_CANVAS_API char* ReadBrushName(std::FILE* file);
DABCANVAS_CANVAS_API XBFRead TryReadBrushName(std::FILE* file, char** name);

/// The next record. Of a method name longer than 39 bytes the rest is skipped. Whatever stops the reading
/// gives a record of id 0 without text or data; a NULL stream gives the id 0x30303030 ("0000").
DABCANVAS_CANVAS_API _XBFParamData NextParamData(std::FILE* file);
DABCANVAS_CANVAS_API XBFRead TryNextParamData(std::FILE* file, _XBFParamData* data);
/// The same, but goes past the text or data and leaves its pointer NULL.
DABCANVAS_CANVAS_API XBFRead TrySkipParamData(std::FILE* file, _XBFParamData* data);

/// Size of a data block in bytes: the product of its three factors, any of which may be negative; -1 when the
/// product is negative or overflows.
DABCANVAS_CANVAS_API std::int64_t XBFDataSize(const _XBFTexture& texture);

/// Frees text or data and clears the pointer.
DABCANVAS_CANVAS_API void XBFFreeParamData(_XBFParamData* data);

/// fclose(); EOF for NULL.
DABCANVAS_CANVAS_API int XBFClose(std::FILE* file);

/// Whether a stream can be an XBF file at all, damaged or not. There is no magic number: a header of kind 4097
/// is enough, and without it all that follows must make sense, namely as many brushes as the file has room
/// for, a name that fits and a first record of a known type. Leaves the stream at its start.
DABCANVAS_CANVAS_API bool XBFLooksRight(std::FILE* file);
