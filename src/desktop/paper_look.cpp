#include "desktop/paper_look.h"

#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "desktop/paper_colors.h"

namespace veld {

namespace {

constexpr int kLeastMark = 13;  // the side of a check box where no font tells it

bool Has(const QStyleOption* option, QStyle::StateFlag flag) {
  return option->state.testFlag(flag);
}

void DrawBox(QPainter* painter, const QRect& rect, QRgb fill, QRgb edge, double radius, double width = 1) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(QColor(fill));
  painter->setPen(QPen(QColor(edge), width));
  const double half = width / 2;
  painter->drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), radius, radius);
  painter->restore();
}

void DrawEdge(QPainter* painter, const QRect& rect, QRgb edge) {
  painter->save();
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QColor(edge));
  painter->drawRect(rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

/// Flat controls drawn with a pen: thin edges, paper inside, ink for what is chosen or has the focus.
class PaperLook : public QProxyStyle {
 public:
  PaperLook() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    switch (element) {
      case PE_PanelButtonCommand:
        return DrawButton(option, painter);
      case PE_FrameFocusRect:
        return DrawFocus(option, painter);
      case PE_PanelLineEdit:
        painter->fillRect(option->rect, QColor(Colors().Paper));
        return DrawEdge(painter, option->rect, EdgeOf(option));
      case PE_FrameLineEdit:
      case PE_Frame:
        return DrawEdge(painter, option->rect, EdgeOf(option));
      case PE_IndicatorCheckBox:
        return DrawCheck(option, painter);
      case PE_IndicatorRadioButton:
        return DrawRadio(option, painter);
      default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element == CE_ProgressBarGroove) {
      painter->fillRect(option->rect, QColor(Colors().Paper));
      return DrawEdge(painter, option->rect, Colors().Edge);
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button && button->features.testFlag(QStyleOptionButton::Flat)) {
      QStyleOptionButton word = *button;  // a mere word is written in ink
      word.palette.setColor(QPalette::ButtonText, QColor(Colors().Ink));
      return QProxyStyle::drawControl(element, &word, painter, widget);
    }
    const auto* progress = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (element == CE_ProgressBarContents && progress) return DrawProgress(*progress, painter);
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    if (control == CC_ComboBox) return DrawCombo(option, painter);
    if (control == CC_ScrollBar) return DrawScrollBar(option, painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar) return ScrollBarPart(*bar, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_ButtonShiftHorizontal:
      case PM_ButtonShiftVertical:
      case PM_ButtonDefaultIndicator:
        return 0;
      case PM_DefaultFrameWidth:
        return 1;
      case PM_ScrollBarExtent:
        return 12;
      case PM_ScrollBarSliderMin:
        return 24;
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
        return option ? option->fontMetrics.ascent() + 1 : kLeastMark;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  /// The toolkit asks at the start, and again whenever the system's colours have changed.
  void polish(QPalette& palette) override { FollowScheme(palette); }
  using QProxyStyle::polish;

  /// A menu bar asks for this one as soon as it is made; looking for it among the desktop's icons takes long.
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
    if (which == SP_ToolBarHorizontalExtensionButton) return MoreIcon();
    return QProxyStyle::standardIcon(which, option, widget);
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_ComboBox_Popup) return 0;  // a list under the box, not a menu over it
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText) return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }

 private:
  static QIcon MoreIcon() {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QColor(Colors().Text));
    for (const int x : {4, 8}) painter.drawPolyline(QPolygon({{x, 4}, {x + 4, 8}, {x, 12}}));
    return QIcon(pixmap);
  }

  static QRgb EdgeOf(const QStyleOption* option) {
    if (!Has(option, State_Enabled)) return Colors().FaintEdge;
    return Has(option, State_HasFocus) ? Colors().Ink : Colors().Edge;
  }

  static void DrawButton(const QStyleOption* option, QPainter* painter) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool isDefault = button && button->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool isDown = Has(option, State_Sunken) || Has(option, State_On);
    const bool isEnabled = Has(option, State_Enabled);
    const bool hasFocus = isEnabled && Has(option, State_HasFocus);
    const bool isLit = hasFocus || (isEnabled && Has(option, State_MouseOver));
    const QRgb fill = isDown ? Colors().Pressed : isLit ? Colors().Wash : Colors().Button;
    const QRgb edge = !isEnabled ? Colors().FaintEdge : isDefault || hasFocus ? Colors().Ink : Colors().Edge;
    DrawBox(painter, option->rect, fill, edge, 3, isDefault && isEnabled ? 1.8 : 1);
    if (hasFocus) DrawBox(painter, option->rect.adjusted(3, 3, -3, -3), fill, Colors().Ink, 2);
  }

  static void DrawFocus(const QStyleOption* option, QPainter* painter) {
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(QColor(Colors().Ink), 1, Qt::DotLine));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
  }

  static void DrawCheck(const QStyleOption* option, QPainter* painter) {
    const QRgb mark = Has(option, State_Enabled) ? Colors().Ink : Colors().Faint;
    DrawBox(painter, option->rect, Has(option, State_Sunken) ? Colors().Wash : Colors().Paper, EdgeOf(option), 2);
    if (!Has(option, State_On)) return;
    const QRectF box = option->rect;
    QPainterPath path(QPointF(box.left() + box.width() * 0.22, box.top() + box.height() * 0.52));
    path.lineTo(box.left() + box.width() * 0.43, box.top() + box.height() * 0.74);
    path.lineTo(box.left() + box.width() * 0.80, box.top() + box.height() * 0.26);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(mark), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(path);
    painter->restore();
  }

  static void DrawRadio(const QStyleOption* option, QPainter* painter) {
    const QRgb mark = Has(option, State_Enabled) ? Colors().Ink : Colors().Faint;
    const double radius = option->rect.width() / 2.0;
    DrawBox(painter, option->rect, Has(option, State_Sunken) ? Colors().Wash : Colors().Paper, EdgeOf(option), radius);
    if (!Has(option, State_On)) return;
    const int inset = std::max(option->rect.width() / 4, 2);
    DrawBox(painter, option->rect.adjusted(inset, inset, -inset, -inset), mark, mark, radius);
  }

  static void DrawProgress(const QStyleOptionProgressBar& bar, QPainter* painter) {
    const int range = std::max(bar.maximum - bar.minimum, 1);
    QRect done = bar.rect.adjusted(2, 2, -2, -2);
    done.setWidth(done.width() * std::clamp(bar.progress - bar.minimum, 0, range) / range);
    painter->fillRect(done, QColor(Colors().Done));
  }

  static void DrawCombo(const QStyleOptionComplex* option, QPainter* painter) {
    painter->fillRect(option->rect, QColor(Colors().Paper));
    DrawEdge(painter, option->rect, EdgeOf(option));
    const double x = option->rect.right() - 11;
    const double y = option->rect.top() + option->rect.height() / 2.0 + 0.5;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(Has(option, State_Enabled) ? Colors().Text : Colors().Faint), 1.4));
    painter->drawPolyline(QPolygonF({{x - 4, y - 2}, {x, y + 2}, {x + 4, y - 2}}));
    painter->restore();
  }

  /// A scroll bar is a slider and nothing else.
  static QRect ScrollBarPart(const QStyleOptionSlider& bar, SubControl part) {
    if (part == SC_ScrollBarGroove) return bar.rect;
    const bool isUpright = bar.orientation == Qt::Vertical;
    const int length = isUpright ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    int slider = length;
    if (range > 0) {
      const qint64 part64 = qint64{length} * bar.pageStep / (qint64{range} + bar.pageStep);
      slider = std::min(std::max(static_cast<int>(part64), 24), length);
    }
    const int from =
        sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - slider, bar.upsideDown);
    const auto stretch = [&](int start, int size) {
      return isUpright ? QRect(bar.rect.left(), bar.rect.top() + start, bar.rect.width(), size)
                       : QRect(bar.rect.left() + start, bar.rect.top(), size, bar.rect.height());
    };
    if (part == SC_ScrollBarSlider) return stretch(from, slider);
    if (part == SC_ScrollBarSubPage) return stretch(0, from);
    if (part == SC_ScrollBarAddPage) return stretch(from + slider, length - from - slider);
    return {};
  }

  void DrawScrollBar(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const {
    painter->fillRect(option->rect, QColor(Colors().Groove));
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (!bar || bar->maximum <= bar->minimum) return;
    const QRect slider = subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget).adjusted(3, 3, -3, -3);
    const QRgb color = Has(option, State_Sunken) || Has(option, State_MouseOver) ? Colors().SliderLit : Colors().Slider;
    DrawBox(painter, slider, color, color, 3);
  }
};

}  // namespace

QStyle* MakePaperLook() {
  return new PaperLook;
}

}  // namespace veld
