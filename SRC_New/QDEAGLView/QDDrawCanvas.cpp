// SPDX-License-Identifier: MIT
// Making and destroying a canvas.
#include "QDEAGLView/QDDrawCanvas.h"

#include <cstdio>
#include <cstdlib>

#include "ESRender/Utilities/ESResource.h"
#include "History/ImagesUndoManager.h"
#include "LineProcess/LPProperties.h"
#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

Q_LOGGING_CATEGORY(lcDabcanvas, "dabcanvas.canvas")

namespace {

constexpr char kDefaultTip[] = "Texture.bundle/PS_brush_11.png";

// A line record of its own; the default record stands under it, so that no field is ever undefined.
LPLineParams* newLineRecord(int line) {
    auto* record = static_cast<LPLineParams*>(std::malloc(sizeof(LPLineParams)));
    if (record == nullptr) {
        std::printf("创建数据失败(%s:%d)!", "SRC_New/QDEAGLView/QDDrawView", line);
        return nullptr;
    }
    *record = _lpDefaultParaObj;
    return record;
}

}  // namespace

std::unique_ptr<QDDrawCanvas> QDDrawCanvas::initWithFrame(const QRectF& frame) {
    std::unique_ptr<QDDrawCanvas> canvas(new QDDrawCanvas(frame));
    return canvas->initCanvas() ? std::move(canvas) : nullptr;
}

bool QDDrawCanvas::initCanvas() {
    const MustStay stays(*this);
    const Call call(*this);
    _esContext = ESContext::init();
    if (!_esContext) {
        return false;
    }
    const StrokeScope scope(*this);
    if (!scope || !initOpenGLESData()) {
        return false;
    }
    return initData();
}

bool QDDrawCanvas::initOpenGLESData() {
    ESContext& context = *_esContext;
    if (!context.createBufferWithSize(shownFrame().size())) {
        return false;
    }
    for (const GLenum capability : {GL_STENCIL_TEST, GL_DEPTH_TEST, GL_SCISSOR_TEST}) {
        ESContext::setEnable(false, capability);
    }
    const QSizeF backing(context.backingWidth(), context.backingHeight());
    context.setViewSize(backing);

    _esRender = ESImageRender::initWithBufferSize(backing);
    _smudgeRender = ESSmudgeRender::init();
    _extenRender = ESLineRender::init();
    _subRender = ESLineRender::init();
    if (!_esRender || !_smudgeRender || !_extenRender || !_subRender) {
        qCWarning(lcDabcanvas, "a canvas cannot be made: a shader program did not build");
        return false;
    }
    _esRender->setLineTextureID(context.lineTexture(), GL_TEXTURE4);
    _esRender->setSubLineTextureID(context.subLineTexture(), GL_TEXTURE5);
    for (ESLineRender* render :
         {_extenRender.get(), _subRender.get(), static_cast<ESLineRender*>(_smudgeRender.get())}) {
        render->setBufferSize(backing);
    }
    _smudgeRender->setSmudgeTextureID(context.smudgeTexture(), GL_TEXTURE7);
    _subRender->setRadianTingle(1.0f);

    const QImage tip = dabcanvas::imageNamed(QString::fromLatin1(kDefaultTip));
    if (tip.isNull()) {
        qCWarning(lcDabcanvas, "the default brush tip %s cannot be read", kDefaultTip);
    } else {
        setTextureImages({tip});
        setSlTextureImage(tip);
    }
    _leafDrawView = makeLeafDrawView(QRectF(QPointF(0, 0), backing));
    _leafDrawView->setComplention([this](const QImage& image, QSizeF) { placePreview(image); });
    updateScaleInfo();
    clear();
    return true;
}

bool QDDrawCanvas::initData() {
    initLineProporty();
    if (_lineParaObj == nullptr) {
        return false;
    }
    _updateRect = QRectF(QPointF(0, 0), bufferSize());
    updateBGImage();
    setTextureType(1);
    setHardness(0.0f);
    warmUp();
    _edited = false;  // clearing it was no editing
    return true;
}

// Drivers finish compiling when a program first draws, which would make the first segment of the first stroke late. So
// each draws once where nothing is.
void QDDrawCanvas::warmUp() {
    const LPPoint outside{{-100, -100}, 1, {1, 1, 1}};
    _esContext->beginRenderForType(ESRenderTypeLine);
    _esContext->setBlendModelForType(ESRenderTypeLine);
    _extenRender->drawPoints(&outside, 1);
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    compositeRect(QRectF(-100, -100, 1, 1));
    _extenRender->resetLineProporty();
}

void QDDrawCanvas::initLineProporty() {
    _subLineParaObj = newLineRecord(581);
    _lineParaObj = newLineRecord(603);
    if (_subLineParaObj == nullptr || _lineParaObj == nullptr) {
        releaseLineRecords();
        return;
    }
    struct LineDefault {
        int id;
        float value;
    };
    static constexpr LineDefault kSubLine[] = {{3, 0.25f}, {1, 32.0f}, {13, 0.2f}, {14, 50.0f}, {20, 0.5f},
                                               {5, 0.0f},  {6, 0.0f},  {7, 0.0f},  {8, 0.0f},   {9, 1.0f},
                                               {10, 1.0f}, {16, 1.0f}, {18, 0.0f}};
    static constexpr LineDefault kMainLine[] = {{1, 5.0f}, {3, 0.25f}, {6, 0.0f}, {7, 0.0f},
                                                {8, 0.0f}, {13, 0.2f}, {20, 0.5f}};
    lpSetParaObj(_subLineParaObj);
    lpSetPropertyb(2, true);
    for (const LineDefault& row : kSubLine) {
        lpSetPropertyf(row.id, row.value);
    }
    lpSetParaObj(_lineParaObj);
    lpSetPropertyb(2, true);
    for (const LineDefault& row : kMainLine) {
        lpSetPropertyf(row.id, row.value);
    }
    applyCreatedValues();
}

void QDDrawCanvas::releaseLineRecords() {
    for (LPLineParams** record : {&_lineParaObj, &_subLineParaObj}) {
        if (*record != nullptr && _lpParaObj == *record) {
            lpSetParaObj(nullptr);  // the line process must not keep a record that is about to go
        }
        std::free(*record);
        *record = nullptr;
    }
}

QDDrawCanvas::QDDrawCanvas(const QRectF& frame) : _frame(frame) {}

QDDrawCanvas::~QDDrawCanvas() {
    if (_neededBy > 0) {
        qFatal(
            "A canvas was destroyed by a call of its own that cannot do without it: a question about its "
            "display, or "
            "an event that hides or resizes it");
    }
    _life.reset();
    _leafDrawView.reset();
    if (_esContext) {
        const ESCurrentScope current(_esContext->openGLView());  // be it lost or not
        // Each goes while its own layer is current. Without the context, deleting their names would hit the host's;
        // they go with ours.
        const auto release = [&](ESRenderType layer, auto& render) {
            if (current) {
                _esContext->beginRenderForType(layer);
                render.reset();
            } else {
                static_cast<void>(render.release());
            }
        };
        release(ESRenderTypeLine, _extenRender);
        release(ESRenderTypeSubLine, _subRender);
        release(ESRenderTypeCanvas, _esRender);
        release(ESRenderTypeSmudge, _smudgeRender);
    }
    _esContext.reset();
    releaseLineRecords();
}

std::unique_ptr<LeafDrawing> QDDrawCanvas::makeLeafDrawView(const QRectF& frame) {
    return std::make_unique<LeafDrawing>(frame.size());
}

// The preview stands for the whole buffer, at whatever size it is shown.
void QDDrawCanvas::placePreview(const QImage& image) {
    const QSizeF buffer = bufferSize();
    drawImage(image, QRectF(0, 0, buffer.width() * _outScale.width(), buffer.height() * _outScale.height()));
}

QSizeF QDDrawCanvas::bufferSize() const {
    return QSizeF(_esContext->backingWidth(), _esContext->backingHeight());
}

QString QDDrawCanvas::rendererName() {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return {};
    }
    const auto* name = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    return QString::fromUtf8(name);
}

void QDDrawCanvas::setRepeatableRandom(bool repeatable) {
    _extenRender->setIsDebug(repeatable);
    _subRender->setIsDebug(repeatable);
    _smudgeRender->setIsDebug(repeatable);
}
