// SPDX-License-Identifier: MIT
// A canvas's brush: the values of its properties, and all that strokes are made from by them.
//
// Values    go by the rows of BrushPropertyList.h. Numbers out of range are clamped, numbers that are not finite refused
//           with a log line. What is derived of them is made anew before the next dab that needs it.
// Hears     whoever listens is told before and after each change; no host is called back.
// Owns      the two line records, the makers of dabs with what they remember of a stroke, tips and papers.
#pragma once

#include <functional>
#include <memory>

#include "Brushes/BrushProperties.h"
#include "Canvas/BrushTips.h"
#include "Dabs/SmudgeDabs.h"
#include "LineProcess/LPProperties.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

inline constexpr int kPreviewBrush = 4;  // its brushType

// What a stroke of a brush is: dabs, dabs that smudge, or the live preview's filled outline. Strokes that are to be
// recognised are plain dabs.
enum class StrokeKind : std::uint8_t { dabs, smudge, preview };

class BrushState {
public:
    // Hears of each change of a property before and after it.
    struct Listener {
        // A value that will be taken, as it was given.
        virtual void brushIsGiven(BrushKey key, const BrushValue& value) = 0;
        virtual void brushWillChange(BrushKey key, const BrushValue& value, StrokeKind kindAfter) = 0;
        virtual void brushChanged(BrushKey key) = 0;

    protected:
        ~Listener() = default;
    };

    BrushState();
    // Null for none; to be set once the values of a new canvas are in.
    void setListener(Listener* listener) { _listener = listener; }

    const BrushSettings& settings() const;
    // The same, but for a drawn tip that nobody has asked for yet.
    const BrushSettings& present() const { return _settings; }
    BrushValue value(BrushKey key) const;
    // `value` must be of the row's type. False, and nothing changed, when it holds a number that is not finite.
    bool set(BrushKey key, const BrushValue& value);

    // Every property that a preset may leave out takes its default; colours, tip images and a few more stay.
    void reset();
    // Size and relation of the second line as a pair: setting either alone changes the other.
    void restoreSubLine(float slRadius, float relationValue);
    // The values that make another state this one, in the order in which they are to be set; but for restoreSubLine(),
    // which comes last.
    void tell(const std::function<void(BrushKey, const BrushValue&)>& take) const;

    StrokeKind kind() const {
        return kindOf(_settings.brushType, _settings.isDebug, _settings.enableRecogition);
    }
    // A second line masks the first.
    bool isMasked() const;

    // ---- what strokes are made from

    // How the canvas is shown, see DabSettings.
    void setViewTurn(float radian, bool mirrored);
    float viewRadian() const { return _dabs.settings.viewRadian; }
    bool isViewMirrored() const { return _dabs.settings.viewMirrored; }

    LPLineParams& line() { return _line; }
    const LPLineParams& line() const { return _line; }
    LPLineParams& subLine() { return _subLine; }
    const LPLineParams& subLine() const { return _subLine; }

    DabMaker& dabs();
    DabMaker& subDabs();
    DabMaker& smudgeDabs();
    SmudgeMaker& smudges();
    DabStyle style() const;
    DabStyle subStyle() const;
    CompositeStyle compositeStyle() const;

    // Fixed random sequences for dabs.
    void setRepeatable(bool repeatable);

private:
    static StrokeKind kindOf(int brushType, bool isDebug, bool enableRecogition);
    StrokeKind kindAfter(BrushKey key, const BrushValue& value) const;
    void applyCreatedValues();
    bool takesValue(const BrushProperty& row, BrushValue& value) const;
    void sendToLines(const BrushProperty& row, const BrushValue& value);
    void applyRules(BrushKey key, const BrushValue& given);
    void takeBlendProgram();
    void chooseTip(bool concerned);
    void takeImages();
    void tellBlend(const std::function<void(BrushKey, const BrushValue&)>& take) const;
    void tellTips(const std::function<void(BrushKey, const BrushValue&)>& take) const;
    float subRadiusFor(float relation) const;
    void setSubRadius(float radius);
    void takeRelationValue();
    void derive();

    mutable BrushSettings _settings;  // a drawn tip is made when it is looked at
    Listener* _listener = nullptr;
    LPLineParams _line = _lpDefaultParaObj;
    LPLineParams _subLine = _lpDefaultParaObj;
    float _givenMinRoundness = 0;  // as it was passed
    std::uint32_t _blendType = 1;  // of blendType or blendFragmentShaderString, whichever was set last

    BrushTips _tips;
    std::shared_ptr<const Picture> _paper;
    std::shared_ptr<const TipSet> _subTips;

    bool _derived = false;  // the makers' settings are those of the values
    DabMaker _dabs, _subDabs, _smudgeDabs;
    SmudgeMaker _smudges;
};

}  // namespace dabcanvas
