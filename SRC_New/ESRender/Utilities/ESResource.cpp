// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESResource.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <mutex>

#include "ESRender/Utilities/ESGLErrors.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

// A static library's resources register themselves only when asked; the macro wants the global namespace.
static void registerEmbeddedResources() {
    Q_INIT_RESOURCE(dabcanvas);
}

namespace dabcanvas {
namespace {

QString libraryFile() {
#if defined(_WIN32)
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&registerEmbeddedResources), &module);
    wchar_t path[32768];
    const DWORD length = GetModuleFileNameW(module, path, 32768);
    return QString::fromWCharArray(path, static_cast<qsizetype>(length));
#else
    Dl_info info = {};
    if (dladdr(reinterpret_cast<const void*>(&registerEmbeddedResources), &info) == 0 || !info.dli_fname) {
        return {};
    }
    // A static build gives the program as it was called, which may be a bare name found along PATH.
    const QFileInfo file(QFile::decodeName(info.dli_fname));
    const QFileInfo program(QStringLiteral("/proc/self/exe"));
    if (!file.exists() && program.exists()) {
        return program.symLinkTarget();
    }
    return file.absoluteFilePath();
#endif
}

bool staysInFolder(const QString& name) {
    const QString clean = QDir::cleanPath(name);
    return !name.isEmpty() && QDir::isRelativePath(clean) && clean != QLatin1String("..") &&
           !clean.startsWith(QLatin1String("../")) && !clean.startsWith(QLatin1Char(':'));
}

}  // namespace

QString libraryFolder() {
    // Kept from the first time: a relative path means something else once the working folder changes.
    static const QString file = libraryFile();
    static const QString folder = file.isEmpty() ? QString() : QFileInfo(file).absolutePath();
    return folder;
}

QString resourcePathIn(const QString& folder, const QString& name) {
    static std::once_flag once;
    std::call_once(once, registerEmbeddedResources);
    if (!staysInFolder(name)) {
        return {};
    }
    if (!folder.isEmpty()) {
        const QString beside = QDir(folder).filePath(name);
        if (QFileInfo(beside).isFile()) {
            return beside;
        }
    }
    const QString embedded = QStringLiteral(":/dabcanvas/") + QDir::cleanPath(name);
    return QFileInfo(embedded).isFile() ? embedded : QString();
}

QString resourcePath(const QString& name) {
    return resourcePathIn(libraryFolder(), name);
}

QImage imageNamed(const QString& name) {
    const QString path = resourcePath(name);
    const QImage image = path.isEmpty() ? QImage() : QImage(path);
    if (image.isNull()) {
        qCWarning(lcDabcanvasGL, "The image resource \"%s\" is missing or cannot be read",
                  qUtf8Printable(name));
    }
    return image;
}

}  // namespace dabcanvas
