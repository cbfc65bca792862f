// SPDX-License-Identifier: MIT
// The part of ESBaseRender that finds shader sources and keeps the programs built from them.
#include <QFile>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <algorithm>

#include "ESRender/ESBaseRender.h"
#include "ESRender/Utilities/ShaderFiles.h"

bool ESBaseRender::setVertexShaderString(const QString& vertexShaderString,
                                         const QString& fragmentShaderFromString) {
    return useProgramWithVertexShaderString(
        vertexShaderString.isNull() ? baseRenderVertexShaderString() : vertexShaderString,
        fragmentShaderFromString.isNull() ? baseRenderFrangmentShaderString() : fragmentShaderFromString);
}

QString ESBaseRender::baseRenderVertexShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/BaseLine_Mac.vsh"));
}

QString ESBaseRender::baseRenderFrangmentShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/BaseLine_Mac.fsh"));
}

ESProgromObject* ESBaseRender::programObjectWithVertexShaderString(
    const QString& vertexShaderString, const QString& fragmentShaderString) const {
    const auto entry = std::find_if(_programObjects.begin(), _programObjects.end(), [&](const auto& object) {
        return object->vertexShaderString() == vertexShaderString &&
               object->fragmentShaderString() == fragmentShaderString;
    });
    return entry == _programObjects.end() ? nullptr : entry->get();
}

bool ESBaseRender::isExistWithVertexShaderString(const QString& vertexShaderString,
                                                 const QString& fragmentShaderString) const {
    return programObjectWithVertexShaderString(vertexShaderString, fragmentShaderString) != nullptr;
}

bool ESBaseRender::addProgramWithVertexShaderString(const QString& vertexShaderString,
                                                    const QString& fragmentShaderString) {
    if (isExistWithVertexShaderString(vertexShaderString, fragmentShaderString)) {
        return false;
    }
    glUseProgram(0);
    std::shared_ptr<ESProgram> built =
        _pool ? _pool->program(vertexShaderString, fragmentShaderString)
              : ESProgram::initWithVertexShaderString(vertexShaderString, fragmentShaderString);
    if (!built) {
        return false;
    }
    bindAttributeForProgram(*built);
    if (!built->link()) {
        return false;
    }
    auto object = std::make_unique<ESProgromObject>();
    object->setProgram(std::move(built));
    object->setVertexShaderString(vertexShaderString);
    object->setFragmentShaderString(fragmentShaderString);
    _programObjects.push_back(std::move(object));
    return true;
}

bool ESBaseRender::useProgramWithVertexShaderString(const QString& vertexShaderString,
                                                    const QString& fragmentShaderString) {
    // Looked up before adding, as adding would look it up once more.
    const ESProgromObject* object =
        programObjectWithVertexShaderString(vertexShaderString, fragmentShaderString);
    if (!object) {
        addProgramWithVertexShaderString(vertexShaderString, fragmentShaderString);
        object = programObjectWithVertexShaderString(vertexShaderString, fragmentShaderString);
    }
    if (!object) {
        return false;
    }
    glUseProgram(0);
    const bool switched = _program != object->program();
    _program = object->program();
    _vertexShaderString = vertexShaderString;
    _fragmentShaderString = fragmentShaderString;
    if (switched) {
        programDidChange();
    }
    return true;
}

void ESBaseRender::removeProgramWithVertexShaderString(const QString& vertexShaderString,
                                                       const QString& fragmentShaderString) {
    const auto find = [&] {
        return std::find_if(_programObjects.begin(), _programObjects.end(), [&](const auto& object) {
            return object->vertexShaderString() == vertexShaderString &&
                   object->fragmentShaderString() == fragmentShaderString;
        });
    };
    auto entry = find();
    if (entry == _programObjects.end()) {
        return;
    }
    if (_program == (*entry)->program()) {
        setVertexShaderString({}, {});
        entry = find();  // the default may have been added to the list meanwhile
    }
    glUseProgram(0);
    if (entry != _programObjects.end()) {
        _programObjects.erase(entry);
    }
}

QString ESBaseRender::stringWithPath(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QLatin1String("") + QString::fromLatin1(file.readAll());  // not null, even of an empty file
}

QString ESBaseRender::stringWithFileName(const QString& fileName) {
    static QMutex mutex;
    static QHash<QString, QString> known;
    const QMutexLocker lock(&mutex);
    const auto read = known.constFind(fileName);
    if (read != known.constEnd()) {
        return *read;
    }
    const QString text = stringWithPath(dabcanvas::shaderPath(fileName));
    if (!text.isNull()) {
        known.insert(fileName, text);
    }
    return text;
}

QByteArray ESBaseRender::sourceWithString(const QString& string) {
    return string.toLatin1();
}

QByteArray ESBaseRender::sourceWithPath(const QString& path) {
    return sourceWithString(stringWithPath(path));
}

QByteArray ESBaseRender::sourceWithFileName(const QString& fileName) {
    return sourceWithString(stringWithFileName(fileName));
}
