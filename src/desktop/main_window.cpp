#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/form_window.h"

namespace veld {

namespace {

constexpr QSize kPageSize(800, 600);
constexpr int kBeside = 24;  // from the corner of the paper to a window on it

}  // namespace

MainPage::MainPage() : menu_(new QMenuBar(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setMenuBar(menu_);
  const QRect room = screen()->availableGeometry();
  resize(kPageSize.boundedTo(room.size()));
  move(room.topLeft());
}

void MainPage::SetStyle(const PaperStyle& style) {
  paper_ = new Paper(style, this);
  layout()->addWidget(paper_);
}

void MainPage::SetMenu(const std::vector<MenuItem>& items) {
  menu_->clear();
  FillMenu(*menu_, items, [this](int id) {
    if (onCommand) onCommand(id);
  });
}

QPoint MainPage::PagePlace() const {
  return paper_->mapToGlobal(QPoint(0, 0));
}

void MainPage::closeEvent(QCloseEvent* event) {
  event->accept();
  if (onClosed) onClosed();
}

}  // namespace veld
