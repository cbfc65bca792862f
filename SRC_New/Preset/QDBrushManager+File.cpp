// SPDX-License-Identifier: MIT
#include <QFileInfo>
#include <QLoggingCategory>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>

#include "Preset/HexText.h"
#include "Preset/ParamNumbers.h"
#include "Preset/QDBrushManager.h"
#include "Preset/ReplacingFile.h"

Q_LOGGING_CATEGORY(lcDabcanvasPreset, "dabcanvas.preset")

namespace {

constexpr double kColorScale = 255.0;
// What a data block's width, the number of its bytes, can say.
constexpr qsizetype kMaxXBFData = std::numeric_limits<qint32>::max();

QString textOf(const char* bytes) {
    return QString::fromUtf8(bytes);  // up to the NUL; what is not UTF-8 becomes replacement characters
}

// Writing

short storedComponent(float component) {
    // Deliberate: cut, not rounded. 0.5 is 127, and what was read is written again as the same number.
    return static_cast<short>(component * kColorScale);
}

_RGBAType storedColor(const QVariant& value) {
    const ESColor color = dabcanvas::colorOf(value);
    return {storedComponent(color.red()), storedComponent(color.green()), storedComponent(color.blue()),
            storedComponent(color.alpha())};
}

// Puts a record's value into the union, which keeps what the record before left in the other bytes, and
// leaves the text or data it points to in `payload`.
void fillValue(_XBFParamValue& value, int type, const QVariant& property, QByteArray& payload) {
    switch (type) {
        case kXBFBool:
            value.boolValue = dabcanvas::booleanOf(property);
            break;
        case kXBFInt:
            value.intValue = dabcanvas::integerOf(property);
            break;
        case kXBFFloat:
            value.floatValue = dabcanvas::floatOf(property);
            break;
        case kXBFDouble:
            value.doubleValue = property.toDouble();
            break;
        case kXBFColor:
            value.colorValue = storedColor(property);
            break;
        case kXBFCharacter:
            value.charValue = property.toString().toUtf8().constData()[0];
            break;
        case kXBFText:
            payload = HexText::hexString(property.toString()).toUtf8();
            value.textValue = payload.data();
            break;
        case kXBFData:
            payload = property.toByteArray();
            // One by one: a whole record would bring bytes of the stack along, into the file.
            value.textureValue.size.width = static_cast<int>(payload.size());
            value.textureValue.size.height = 1;
            value.textureValue.depth = 1;
            value.textureValue.data = payload.data();
            break;
        default:
            break;
    }
}

QString refusal(const BrushParams& params) {
    if (params.size() > QDBrushManager::kMostRecords) {
        return QStringLiteral("a brush has at most %1 records").arg(QDBrushManager::kMostRecords);
    }
    for (qsizetype i = 0; i < params.size(); ++i) {
        const QVariant value = BrushRecords::paramValue(params[i]);
        if (BrushRecords::key(params[i]) == 0) {
            return QStringLiteral("record %1 has the id 0, which would end the brush").arg(i + 1);
        }
        if (BrushRecords::type(params[i]) == kXBFData && value.toByteArray().size() > kMaxXBFData) {
            return QStringLiteral("the data of record %1 is larger than a file can say").arg(i + 1);
        }
    }
    return {};
}

bool writeBrush(std::FILE* file, const BrushParams& params, int version, const QString& name) {
    bool written = AddXBFInfo(file, XBFInfoMake(static_cast<quint32>(version), 1)) &&
                   AddBrushName(file, name.toUtf8().constData());
    // Deliberate: cleared once, not for every record. Readers ignore the bytes that a type does not name.
    _XBFParamValue value;
    std::memset(&value, 0, sizeof value);
    for (const BrushParam& param : params) {
        QByteArray payload;
        const int type = BrushRecords::type(param);
        fillValue(value, type, BrushRecords::paramValue(param), payload);
        written = written && AddValue(file, static_cast<quint32>(BrushRecords::key(param)),
                                      BrushRecords::method(param).toUtf8().constData(),
                                      static_cast<quint32>(type), value);
    }
    value.doubleValue = 0;  // the first 8 bytes
    return written && AddValue(file, 0, "", 0, value);
}

// Reading

struct CloseXBF {
    void operator()(std::FILE* file) const { XBFClose(file); }
};
using XBFStream = std::unique_ptr<std::FILE, CloseXBF>;

// The value of a record, from a file's form of it.
QVariant valueFromParamData(const _XBFParamData& data) {
    const _XBFParamValue& value = data.value;
    switch (data.type) {
        case kXBFBool:
            return QVariant(value.boolValue != 0);
        case kXBFInt:
            return QVariant(value.intValue);
        case kXBFFloat:
            return QVariant(value.floatValue);
        case kXBFDouble:
            return QVariant(value.doubleValue);
        case kXBFColor: {
            const auto component = [](short stored) { return static_cast<float>(stored / kColorScale); };
            const _RGBAType& color = value.colorValue;
            return QVariant::fromValue(ESColor::rgba(component(color.r), component(color.g),
                                                     component(color.b), component(color.a)));
        }
        case kXBFCharacter:
            return value.charValue == 0 ? QString() : QString(QChar::fromLatin1(value.charValue));
        case kXBFText:
            return HexText::baseString(textOf(value.textValue));
        case kXBFData:
            return value.textureValue.data
                       ? QByteArray(value.textureValue.data,
                                    static_cast<qsizetype>(XBFDataSize(value.textureValue)))
                       : QByteArray();
        default:
            return QVariant(0);
    }
}

XBFRead readName(std::FILE* file, QString& name) {
    char* bytes = nullptr;
    const XBFRead result = TryReadBrushName(file, &bytes);
    name = bytes ? textOf(bytes) : QStringLiteral("");
    std::free(bytes);
    return result;
}

// Goes through the records up to the terminator, or to what stopped the reading before it; `taken` becomes how many
// there were. In memory a record is many times as large as in the file, so there may only be so many.
template <typename Next, typename Take>
XBFRead forEachRecord(std::FILE* file, qsizetype most, qsizetype& taken, const Next& next, const Take& take) {
    for (taken = 0;; ++taken) {
        _XBFParamData data;
        const XBFRead result = next(file, &data);
        if (result != XBFRead::ok) {
            return result;
        }
        if (taken < most) {
            take(data);
        }
        XBFFreeParamData(&data);
        if (taken == most) {
            return XBFRead::tooMany;
        }
    }
}

// What is wrong with a stream as a whole; empty when it can be read.
QString complaint(std::FILE* file, XBFInfo& info) {
    const XBFRead header = TryReadXBFInfo(file, &info);
    if (header == XBFRead::failed) {
        return textOf(XBFReadText(header));
    }
    if (header != XBFRead::ok || !XBFLooksRight(file)) {
        return QStringLiteral("this is not an XBF file");
    }
    TryReadXBFInfo(file, &info);  // goes behind the header
    return {};
}

QString problemText(const QString& piece, XBFRead read) {
    return QStringLiteral("%1: %2").arg(piece, textOf(XBFReadText(read)));
}

QString brushText(int index, int count) {
    return QStringLiteral("brush %1 of %2").arg(index + 1).arg(count);
}

// Goes through the brushes of a stream. `take` reads the records of each, at most so many, and returns how that went;
// it is told whether the brush is the last one. Returns what was wrong, if anything.
template <typename Take>
QString forEachBrush(std::FILE* file, const XBFInfo& info, const Take& take) {
    const int count = static_cast<int>(info.count);
    qsizetype left = QDBrushManager::kMostRecordsOfFile;
    for (int i = 0; i < count; ++i) {
        QString name;
        XBFRead result = left > 0 ? readName(file, name) : XBFRead::tooMany;
        if (result != XBFRead::ok) {
            return problemText(QStringLiteral("name of ") + brushText(i, count), result);
        }
        qsizetype records = 0;
        result = take(name, i + 1 == count, std::min<qsizetype>(left, QDBrushManager::kMostRecords), records);
        left -= records + 1;
        if (result != XBFRead::terminator) {
            return problemText(QStringLiteral("record %1 of ").arg(records + 1) + brushText(i, count),
                               result);
        }
    }
    return {};
}

// Opens a file and has `read` read it; tells and logs what was wrong.
template <typename Result, typename Read>
std::optional<Result> readFile(const QString& path, QString* problem, const Read& read) {
    QString wrong;
    std::optional<Result> result;
    const QFileInfo info(path);
    if (path.contains(QChar(0))) {
        wrong = QStringLiteral("this is not a path");  // the file system would see another one
    } else if (info.exists() && !info.isFile()) {
        wrong =
            QStringLiteral("it is not a plain file");  // a pipe might keep whoever opens it waiting for ever
    } else if (const XBFStream file(XBFOpen(path.isNull() ? nullptr : path.toUtf8().constData())); file) {
        result = read(file.get(), &wrong);
    } else {
        wrong = QString::fromLocal8Bit(std::strerror(path.isNull() ? EINVAL : errno));
    }
    if (!wrong.isEmpty()) {
        qCWarning(lcDabcanvasPreset, "%s %s: %s",
                  result ? "Damaged brush file" : "Cannot read the brush file", qUtf8Printable(path),
                  qUtf8Printable(wrong));
    }
    if (problem) {
        *problem = wrong;
    }
    return result;
}

}  // namespace

BrushParam QDBrushManager::paramWithID(int id, const QString& method, const QVariant& propertyValue,
                                       int propertyType) {
    return {{kBrushParamIDValueKey, id},
            {kBrushParamMethodValueKey, method},
            {kBrushParamPropertyValueKey, propertyValue},
            {kBrushParamPropertyTypeKey, propertyType}};
}

BrushParam QDBrushManager::paramFromParamData(const _XBFParamData& data) {
    return paramWithID(data.id, textOf(data.name), valueFromParamData(data), data.type);
}

bool QDBrushManager::saveParams(const std::optional<BrushParams>& params, int version,
                                const QString& withName, const QString& inPath, QString* problem) {
    QString wrong = params ? refusal(*params) : QStringLiteral("there are no parameters to write");
    if (wrong.isEmpty()) {
        ReplacingFile file(inPath);
        const bool written = file.file() && writeBrush(file.file(), *params, version, withName);
        if (file.file() && !written) {
            wrong = QStringLiteral("a text is larger than a file can say");
        } else if (!file.commit()) {
            wrong = file.problem();
        }
    }
    if (!wrong.isEmpty()) {
        qCWarning(lcDabcanvasPreset, "Cannot write the brush file %s: %s", qUtf8Printable(inPath),
                  qUtf8Printable(wrong));
    }
    if (problem) {
        *problem = wrong;
    }
    return wrong.isEmpty();
}

std::optional<QList<QVariantMap>> QDBrushManager::brushesWithXBFStream(std::FILE* file, int* version,
                                                                       QString* problem) {
    XBFInfo info;
    QString wrong = complaint(file, info);
    std::optional<QList<QVariantMap>> brushes;
    if (wrong.isEmpty()) {
        brushes.emplace();
        const int fileVersion = static_cast<int>(info.version());
        if (version) {
            *version = fileVersion;
        }
        wrong = forEachBrush(file, info, [&](const QString& name, bool, qsizetype most, qsizetype& records) {
            BrushParams params;
            const XBFRead result =
                forEachRecord(file, most, records, TryNextParamData,
                              [&](const _XBFParamData& data) { params.append(paramFromParamData(data)); });
            brushes->append({{kBrushNameKey, name},
                             {kBrushVersionKey, fileVersion},
                             {kBrushParamsKey, QVariant::fromValue(params)}});
            return result;
        });
    }
    if (problem) {
        *problem = wrong;
    }
    return brushes;
}

std::optional<QList<QVariantMap>> QDBrushManager::brushesWithXBFPath(const QString& path, int* version,
                                                                     QString* problem) {
    return readFile<QList<QVariantMap>>(path, problem, [version](std::FILE* file, QString* wrong) {
        return brushesWithXBFStream(file, version, wrong);
    });
}

std::optional<QStringList> QDBrushManager::brushNamesWithXBFPath(const QString& path, int* version,
                                                                 QString* problem) {
    return readFile<QStringList>(
        path, problem, [version](std::FILE* file, QString* wrong) -> std::optional<QStringList> {
            XBFInfo info;
            *wrong = complaint(file, info);
            if (!wrong->isEmpty()) {
                return std::nullopt;
            }
            if (version) {
                *version = static_cast<int>(info.version());
            }
            QStringList names;
            const auto ignore = [](const _XBFParamData&) {};
            *wrong = forEachBrush(
                file, info, [&](const QString& name, bool last, qsizetype most, qsizetype& records) {
                    names.append(name);
                    return last ? XBFRead::terminator
                                : forEachRecord(file, most, records, TrySkipParamData, ignore);
                });
            return names;
        });
}
