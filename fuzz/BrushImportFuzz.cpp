// SPDX-License-Identifier: MIT
// Any bytes, read as another program's brush of each kind. What is refused has a reason, and what is read has values that
// are finite, and a few tips that are no larger than what is painted with.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "Import/BrushImport.h"

using namespace dabcanvas;

namespace {

constexpr int kMostTips = 16, kMostSide = 2048;

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "BrushImportFuzz: %s\n", what);
    std::abort();
}

bool isFinite(const BrushValue& value) {
    if (const float* number = std::get_if<float>(&value)) {
        return std::isfinite(*number);
    }
    const auto* control = std::get_if<LPControlParams>(&value);
    return control == nullptr || (std::isfinite(control->pressure) && std::isfinite(control->altitude) &&
                                  std::isfinite(control->speed));
}

void check(const std::optional<ImportedBrush>& brush, const QString& problem) {
    if (brush.has_value() != problem.isEmpty()) {
        fail("refused without a reason, or read with one");
    }
    for (const auto& [key, value] : brush ? brush->values : decltype(brush->values)()) {
        if (!isFinite(value)) {
            std::fprintf(stderr, "%s\n", brushProperty(key).name);
            fail("a value that is not finite");
        }
        const auto* tips = std::get_if<QList<QImage>>(&value);
        for (const QImage& tip : tips != nullptr ? *tips : QList<QImage>()) {
            if (tips->size() > kMostTips || tip.isNull() || tip.width() != tip.height() ||
                tip.width() > kMostSide) {
                fail("tips that are none");
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const auto& import : {importBrush, importTip, importPaper}) {
        QString problem;
        const auto brush = import(bytes, &problem);
        check(brush, problem);
    }
    return 0;
}
