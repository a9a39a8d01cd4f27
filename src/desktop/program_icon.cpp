#include "desktop/program_icon.h"

#include <QPainter>
#include <QPixmap>

#include "desktop/paper_colors.h"

namespace veld {

QIcon ProgramIcon() {
  QPixmap pixmap(64, 64);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(kLightPaper.Edge), 2));
  painter.setBrush(QColor(kLightPaper.Paper));
  painter.drawRoundedRect(QRectF(7, 3, 50, 58), 4, 4);
  painter.setPen(QPen(QColor(kLightPaper.Done), 2));
  for (int y = 14; y < 55; y += 9) painter.drawLine(11, y, 53, y);
  const QPolygonF die({{32, 12}, {50, 22}, {50, 43}, {32, 53}, {14, 43}, {14, 22}});
  painter.setPen(QPen(QColor(kLightPaper.Ink), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor(kLightPaper.Wash));
  painter.drawPolygon(die);
  painter.drawPolygon(QPolygonF({{32, 22}, {42, 39}, {22, 39}}));
  painter.drawLines(QList<QLineF>{{32, 12, 32, 22}, {50, 43, 42, 39}, {14, 43, 22, 39}});
  return QIcon(pixmap);
}

}  // namespace veld
