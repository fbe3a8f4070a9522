#include "window/LargeMarks.h"

#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>

namespace {

// The style elements that a check box or an option button consists of.
struct Parts {
    QStyle::SubElement markRect;
    QStyle::PrimitiveElement mark;
    QStyle::SubElement labelRect;
    QStyle::ControlElement label;
    QStyle::SubElement focusRect;
};
constexpr Parts CheckBoxParts{QStyle::SE_CheckBoxIndicator, QStyle::PE_IndicatorCheckBox,
                              QStyle::SE_CheckBoxContents, QStyle::CE_CheckBoxLabel,
                              QStyle::SE_CheckBoxFocusRect};
constexpr Parts OptionParts{QStyle::SE_RadioButtonIndicator, QStyle::PE_IndicatorRadioButton,
                            QStyle::SE_RadioButtonContents, QStyle::CE_RadioButtonLabel,
                            QStyle::SE_RadioButtonFocusRect};

// The application's style still draws the parts; only sizes and places are computed here, as some
// styles ignore the metrics.
class LargeMarks : public QProxyStyle {
public:
    LargeMarks(QAbstractButton& button, int ownSize)
        : QProxyStyle(button.style()->name()), size(ownSize), gap(ownSize / 3) {
        setParent(&button);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        switch (metric) {
            case PM_IndicatorWidth:
            case PM_IndicatorHeight:
            case PM_ExclusiveIndicatorWidth:
            case PM_ExclusiveIndicatorHeight: return size;
            default: return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        if (type == CT_CheckBox || type == CT_RadioButton) {
            return {size + gap + contents.width(), std::max(size, contents.height())};
        }
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }

    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override {
        const QRect whole = option->rect;
        switch (element) {
            case SE_CheckBoxIndicator:
            case SE_RadioButtonIndicator: {
                const QRect mark(whole.left(), whole.center().y() - size / 2, size, size);
                return visualRect(option->direction, whole, mark);
            }
            case SE_CheckBoxContents:
            case SE_RadioButtonContents:
                return visualRect(option->direction, whole, whole.adjusted(size + gap, 0, 0, 0));
            default: return QProxyStyle::subElementRect(element, option, widget);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_CheckBox || element == CE_RadioButton) {
            Draw(element == CE_CheckBox ? CheckBoxParts : OptionParts, option, painter, widget);
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
    }

private:
    void Draw(const Parts& parts, const QStyleOption* whole, QPainter* painter,
              const QWidget* widget) const {
        QStyleOptionButton part = *qstyleoption_cast<const QStyleOptionButton*>(whole);
        part.rect = subElementRect(parts.markRect, whole, widget);
        drawPrimitive(parts.mark, &part, painter, widget);
        part.rect = subElementRect(parts.labelRect, whole, widget);
        drawControl(parts.label, &part, painter, widget);
        if (whole->state.testFlag(State_HasFocus)) {
            QStyleOptionFocusRect focus;
            focus.QStyleOption::operator=(*whole);
            focus.rect = subElementRect(parts.focusRect, whole, widget);
            drawPrimitive(PE_FrameFocusRect, &focus, painter, widget);
        }
    }

    int size;  // of a mark, in logical pixels
    int gap;   // between mark and label
};

}  // namespace

void EnlargeMark(QAbstractButton& button) {
    const int wanted = button.fontMetrics().ascent();
    if (wanted > button.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &button)) {
        button.setStyle(new LargeMarks(button, wanted));
    }
}
