// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>
#include <set>
#include <vector>

class QDDrawView;

namespace dabcanvas::dabpainter {

// Small pictures of what each layer holds, by itself. They follow the canvas when it has come to rest: never in mid-stroke, a
// layer at a time, and the work is a thread's but for taking the layer's pixels.
class LayerThumbnails : public QObject {
    Q_OBJECT

public:
    static constexpr int kRest = 400;  // milliseconds without a change

    explicit LayerThumbnails(QObject* parent = nullptr);
    void setView(QDDrawView* view);  // not owned; null for none
    // Within this box of points; pixels per point. Others than before: all are made again.
    void setLook(QSize box, qreal ratio);
    // Off: nobody sees them.
    void setOn(bool on);

    QSize box() const { return _box; }
    // Above a chequerboard, in a frame; null while there is none.
    QImage of(int layer) const;

signals:
    void changed(int layer);

private:
    void noteChange();
    void noteLayers();
    void makeStale(bool soon);
    void go();
    void take(int layer, int look, const QImage& image);

    QPointer<QDDrawView> _view;
    QSize _box{1, 1};
    qreal _ratio = 1;
    bool _on = false, _couldRedo = false, _making = false;
    int _look = 0;  // of which picture in the works is still wanted
    std::vector<QImage> _images;
    QStringList _names;
    std::set<int> _stale;
    QTimer _timer;
    QThreadPool _maker;  // ends before the rest
};

}  // namespace dabcanvas::dabpainter
