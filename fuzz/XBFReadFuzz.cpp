// SPDX-License-Identifier: MIT
// Any bytes, read as a brush file: by the plain functions, with and without values, and by the class. All
// must find the same records; what the class read is saved, and must come back with the same ids and types.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

#include "Preset/QDBrushManager.h"

namespace {

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "XBFReadFuzz: %s\n", what);
    std::abort();
}

struct Record {
    int id, type;
    bool operator==(const Record&) const = default;
};

// The records of all brushes that begin; each brush ends with {0, 0}.
std::vector<Record> readPlainly(std::FILE* file, bool withValues) {
    std::vector<Record> records;
    const int count = static_cast<int>(ReadXBFInfo(file).count);
    for (int i = 0; i < count; ++i) {
        char* name = nullptr;
        const XBFRead result = TryReadBrushName(file, &name);
        std::free(name);
        if (result != XBFRead::ok) {
            break;
        }
        XBFRead read = XBFRead::ok;
        while (read == XBFRead::ok) {
            _XBFParamData data;
            read = withValues ? TryNextParamData(file, &data) : TrySkipParamData(file, &data);
            XBFFreeParamData(&data);
            records.push_back({data.id, data.type});
        }
        if (read != XBFRead::terminator) {
            break;
        }
    }
    return records;
}

std::vector<Record> recordsOf(const QList<QVariantMap>& brushes) {
    std::vector<Record> records;
    for (const QVariantMap& brush : brushes) {
        for (const BrushParam& param : BrushRecords::brushParams(brush)) {
            records.push_back({BrushRecords::key(param), BrushRecords::type(param)});
        }
        records.push_back({0, 0});
    }
    return records;
}

void saveAndReadAgain(const QVariantMap& brush) {
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("xbf-fuzz-" + std::to_string(::getpid()) + ".xbf"))
            .string();
    const QString name = QString::fromStdString(path);
    if (!QDBrushManager::saveParams(BrushRecords::brushParams(brush), BrushRecords::brushVersion(brush),
                                    BrushRecords::brushName(brush), name)) {
        fail("what was read cannot be saved");
    }
    QString problem;
    const auto again = QDBrushManager::brushesWithXBFPath(name, nullptr, &problem);
    std::filesystem::remove(path);
    if (!again || !problem.isEmpty() || recordsOf(*again) != recordsOf({brush})) {
        fail("what was saved reads back otherwise");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;  // which fmemopen() does not open
    }
    const Stream stream(::fmemopen(const_cast<std::uint8_t*>(data), size, "rb"), XBFClose);
    const bool right = XBFLooksRight(stream.get());
    const std::vector<Record> records = readPlainly(stream.get(), true);
    if (records != readPlainly(stream.get(), false)) {
        fail("skipping values finds other records than reading them");
    }
    int version = -1;
    QString problem;
    const auto brushes = QDBrushManager::brushesWithXBFStream(stream.get(), &version, &problem);
    if (brushes.has_value() != right || (!brushes && problem.isEmpty())) {
        fail("a file is refused that looks right, or without a reason");
    }
    if (brushes && recordsOf(*brushes) != records) {
        fail("the class finds other records than the plain functions");
    }
    if (brushes && !brushes->isEmpty()) {
        saveAndReadAgain(brushes->front());
    }
    return 0;
}
