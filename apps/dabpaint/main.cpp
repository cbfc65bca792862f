// SPDX-License-Identifier: MIT
#include <QFile>
#include <exception>
#include <new>

#include "CommandLine.h"
#include "Console.h"

int main(int argc, char** argv) {
    using namespace dabcanvas::dabpaint;
    try {
        QStringList arguments;
        for (int i = 1; i < argc; ++i)
            arguments << QFile::decodeName(argv[i]);
        return runDabpaint(arguments);
    } catch (const std::bad_alloc&) {
        return fail(QStringLiteral("out of memory"));
    } catch (const std::exception& fault) {
        return fail(QString::fromLocal8Bit(fault.what()));
    }
}
