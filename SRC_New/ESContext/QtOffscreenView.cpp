// SPDX-License-Identifier: MIT
#include "ESContext/QtOffscreenView.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSurfaceFormat>
#include <QThread>

#include "ESRender/Utilities/ESGLErrors.h"

QtOffscreenView::QtOffscreenView()
    : _surface(std::make_unique<QOffscreenSurface>()), _context(std::make_unique<QOpenGLContext>()) {}

std::unique_ptr<QtOffscreenView> QtOffscreenView::create(QString* reason) {
    const auto fail = [reason](const QString& why) -> std::unique_ptr<QtOffscreenView> {
        if (reason) {
            *reason = why;
        }
        return nullptr;
    };
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        return fail(QStringLiteral("Qt has no QGuiApplication"));
    }
    if (QThread::currentThread() != QCoreApplication::instance()->thread()) {
        return fail(QStringLiteral("Qt makes surfaces on the GUI thread only"));
    }
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(3, 2);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setRedBufferSize(8);
    format.setGreenBufferSize(8);
    format.setBlueBufferSize(8);
    format.setAlphaBufferSize(8);
    // Only framebuffer objects are drawn into: the surface needs neither of these.
    format.setDepthBufferSize(0);
    format.setStencilBufferSize(0);
    format.setOption(QSurfaceFormat::ResetNotification);  // where the driver can

    std::unique_ptr<QtOffscreenView> view(new QtOffscreenView);
    view->_context->setFormat(format);
    // The context's application-wide sharing group, when the host set one, is left out: nothing is shared.
    if (!view->_context->create()) {
        return fail(QStringLiteral("the Qt platform \"%1\" gives no OpenGL context")
                        .arg(QGuiApplication::platformName()));
    }
    view->_surface->setFormat(view->_context->format());
    view->_surface->create();
    if (!view->_surface->isValid()) {
        return fail(QStringLiteral("the Qt platform \"%1\" gives no offscreen surface")
                        .arg(QGuiApplication::platformName()));
    }
    return view;
}

QtOffscreenView::~QtOffscreenView() {
    doneCurrent();
    // Qt may still count ours as current while another context was made so past it; destroying ours would
    // then let go of that one.
    const ESHostContext native = ESHostContext::capture();
    _context.reset();
    if (!ESHostContext::capture().sameNativeContext(native)) {
        native.restoreNative();
    }
}

bool QtOffscreenView::makeCurrent() {
    if (isCurrent()) {
        return true;
    }
    const ESHostContext host = saveHost();
    // The window system of Qt's context is known after the first time only; until then let go of either.
    if (!_native.hasEGL()) {
        ESHostContext::releaseEGL();
    }
    if (!_native.hasGLX()) {
        ESHostContext::releaseGLX();
    }
    if (!_context->makeCurrent(_surface.get())) {
        restoreHost(host);
        return false;
    }
    if (!_native.hasEGL() && !_native.hasGLX()) {
        _native = ESHostContext::capture();
    }
    return true;
}

bool QtOffscreenView::isCurrent() const {
    // Qt does not notice when another context is made current past it, so the window system is asked too.
    return QOpenGLContext::currentContext() == _context.get() &&
           ESHostContext::capture().sameNativeContext(_native);
}

bool QtOffscreenView::isLost() const {
    return !_context->isValid();
}

void QtOffscreenView::doneCurrent() {
    if (isCurrent()) {
        _context->doneCurrent();
    }
}

void QtOffscreenView::restoreHost(const ESHostContext& host) {
    if (host.qtContext && host.qtContext != _context.get()) {
        if (!host.qtContext->makeCurrent(host.qtSurface)) {
            qCWarning(lcDabcanvasGL, "The host's OpenGL context could not be made current again");
        }
    } else if (!host.qtContext && QOpenGLContext::currentContext() == _context.get()) {
        _context->doneCurrent();
    }
    // The host may have had another context current past Qt.
    if (!ESHostContext::capture().sameNativeContext(host)) {
        host.restoreNative();
    }
}
