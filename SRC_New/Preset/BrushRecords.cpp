// SPDX-License-Identifier: MIT
#include "Preset/BrushRecords.h"

#include <algorithm>

namespace BrushRecords {

QString brushName(const QVariantMap& brush) {
    return brush.value(kBrushNameKey).toString();
}

BrushParams brushParams(const QVariantMap& brush) {
    return brush.value(kBrushParamsKey).value<BrushParams>();
}

int brushVersion(const QVariantMap& brush) {
    return brush.value(kBrushVersionKey).toInt();
}

int key(const BrushParam& param) {
    return param.value(kBrushParamIDValueKey).toInt();
}

QString method(const BrushParam& param) {
    return param.value(kBrushParamMethodValueKey).toString();
}

QVariant paramValue(const BrushParam& param) {
    return param.value(kBrushParamPropertyValueKey);
}

int type(const BrushParam& param) {
    return param.value(kBrushParamPropertyTypeKey).toInt();
}

QVariant paramValueForKey(const BrushParams& params, quint32 id) {
    const auto found = std::find_if(params.begin(), params.end(), [id](const BrushParam& param) {
        return static_cast<quint32>(key(param)) == id;
    });
    return found == params.end() ? QVariant() : paramValue(*found);
}

}  // namespace BrushRecords
