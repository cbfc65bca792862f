// SPDX-License-Identifier: MIT
/// \file
/// A brush preset in memory: parameter records, one for each stored brush setting, in a brush dictionary with
/// the preset's name and version.
///
/// Record   "ID" int, "Method" QString (the setter that applies the value, such as "setRadius:"), "Property"
///          the value, "PropertyType" int (an XBFPropertyType, which says what the value is in a file).
/// Values   bool, int, float (QMetaType::Float), double, ESColor, QString or QByteArray, in the order of the
///          type codes; a single character is a QString.
/// Thread   plain values, implicitly shared; any thread.
#pragma once

#include <QList>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <cstdint>

#include "Brushes/ESColor.h"
#include "Maths/Export.h"
#include "Preset/XBF.h"

using BrushParam = QVariantMap;
using BrushParams = QList<BrushParam>;

/// Entries of a parameter record.
inline const QString kBrushParamIDValueKey = QStringLiteral("ID");
inline const QString kBrushParamMethodValueKey = QStringLiteral("Method");
inline const QString kBrushParamPropertyValueKey = QStringLiteral("Property");
inline const QString kBrushParamPropertyTypeKey = QStringLiteral("PropertyType");

/// Entries of a brush dictionary.
inline const QString kBrushNameKey = QStringLiteral("BrushName");        ///< QString
inline const QString kBrushVersionKey = QStringLiteral("BrushVersion");  ///< int
inline const QString kBrushParamsKey = QStringLiteral("BrushParams");    ///< BrushParams, in file order

/// Reading them. What an entry lacks, or holds as something that Qt cannot convert, is empty or 0.
namespace BrushRecords {

/// Of a brush dictionary.
DABCANVAS_CANVAS_API QString brushName(const QVariantMap& brush);
DABCANVAS_CANVAS_API BrushParams brushParams(const QVariantMap& brush);
DABCANVAS_CANVAS_API int brushVersion(const QVariantMap& brush);

/// Of a parameter record.
DABCANVAS_CANVAS_API int key(const BrushParam& param);
DABCANVAS_CANVAS_API QString method(const BrushParam& param);
DABCANVAS_CANVAS_API QVariant paramValue(const BrushParam& param);
DABCANVAS_CANVAS_API int type(const BrushParam& param);

/// The value of the first record of this id; invalid when there is none. Later records of the id are ignored.
DABCANVAS_CANVAS_API QVariant paramValueForKey(const BrushParams& params, quint32 id);

}  // namespace BrushRecords
