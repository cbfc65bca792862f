// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <cstdio>
#include <optional>

#include "Maths/Export.h"
#include "Preset/BrushRecords.h"

class QDDrawCanvas;

/// Brush presets: their records, and the XBF files they are kept in.
///
/// Paths    any text; the file system is given their UTF-8 form.
/// Thread   any; nothing is kept between calls.
/// Errors   never throws: false or nullopt, with one line in the log category dabcanvas.preset that names the
///          file and says what was wrong. A `problem`, when given, receives the same in words, or becomes
///          empty. A file that cannot be opened also gets XBF.h's message on standard output.
class DABCANVAS_CANVAS_API QDBrushManager {
public:
    QDBrushManager() = delete;

    /// What files are saved as. 100 marks presets of an older model, which applying migrates.
    static constexpr int kVersion = 200;
    /// How many records a brush and all brushes of a file may have, a brush counting as one: many times what a brush is
    /// made of, and hundreds of whole brushes. What has more is damaged, and not written.
    static constexpr int kMostRecords = 4096, kMostRecordsOfFile = 65536;

    // ---- A canvas's brush

    /// Its brush as records, in a fixed order; no list without a canvas. Colours are whole here and lose what a byte
    /// cannot hold in a file; tip images are taken only when the tip is not a drawn one.
    static std::optional<BrushParams> paramsOfDrawView(const QDDrawCanvas* view);
    /// Captures it into a file, as saveParams() does.
    static bool saveParamsWithDrawView(const QDDrawCanvas* view, const QString& withName,
                                       const QString& inPath, QString* problem = nullptr);
    /// Makes records the brush: first every property takes its default, see QDDrawCanvas::resetParams(). Records of
    /// unknown ids are skipped; what flawOfParams() tells of is left out, with one log line for all of it. False, and
    /// nothing changed, without a canvas or a list.
    static bool resetDrawView(QDDrawCanvas* view, const std::optional<BrushParams>& withParams, int version);
    /// The same with the last brush of a file. False, and nothing changed, also when there is none or the file is
    /// damaged anywhere: who wants what is whole of it reads it with brushesWithXBFPath(). `problem` tells besides of
    /// the first value that was left out, although the brush was taken.
    static bool resetDrawView(QDDrawCanvas* view, const QString& withXBFFile, QString* problem = nullptr);
    /// The first value that no canvas takes, such as "maskImage is not an image that can be read"; empty when all of
    /// them are good. A number is bad that is not finite, an image that cannot be decoded, that makes all of them
    /// larger than 2^28 pixels, or that has more pixels than so few bytes ever hold.
    static QString flawOfParams(const BrushParams& params);

    // ---- Records

    /// A record of these entries; nothing is checked.
    static BrushParam paramWithID(int id, const QString& method, const QVariant& propertyValue,
                                  int propertyType);
    /// A record as read from a file, whose text or data stays the caller's. An unknown type gives int 0.
    static BrushParam paramFromParamData(const _XBFParamData& data);

    // ---- Files

    /// Writes a preset of one brush. It is written beside the path first and then takes the old file's place,
    /// so that there is always a whole file. Links are followed, and permissions stay.
    ///   params    no list: nothing is written. A value of another type than its record says is converted, to 0 or
    ///             an empty value at the worst; integers are cut, not rounded. Text reaches up to U+00FF (HexText.h).
    ///             A record of id 0, which would end the brush, is refused.
    ///   withName  up to a NUL character
    /// False where nothing was written.
    static bool saveParams(const std::optional<BrushParams>& params, int version, const QString& withName,
                           const QString& inPath, QString* problem = nullptr);

    /// The brushes of a file as dictionaries, none when its header says so. Of a damaged file, what is whole:
    /// brushes, and of the last one the records before the damage; `problem` then says what was wrong. No
    /// list, and `version` untouched, when the file cannot be opened or is no XBF file (XBFLooksRight()).
    static std::optional<QList<QVariantMap>> brushesWithXBFPath(const QString& path, int* version = nullptr,
                                                                QString* problem = nullptr);
    /// The same of an open stream, from its start; the stream stays the caller's. Logs nothing.
    static std::optional<QList<QVariantMap>> brushesWithXBFStream(std::FILE* file, int* version = nullptr,
                                                                  QString* problem = nullptr);

    /// Only the names, for a listing: values are not read, and nothing behind the last name is looked at.
    static std::optional<QStringList> brushNamesWithXBFPath(const QString& path, int* version = nullptr,
                                                            QString* problem = nullptr);

private:
    // Returns the first value that was left out, if any.
    static QString becomeBrush(QDDrawCanvas& canvas, const BrushParams& params, int version);
};
