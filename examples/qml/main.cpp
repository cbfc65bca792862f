// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreationFailed, &application,
        [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QStringLiteral("qrc:/Painter.qml"));
    return QGuiApplication::exec();
}
