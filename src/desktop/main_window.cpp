#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/form_window.h"

namespace veld {

namespace {

constexpr QSize kPageSize(800, 600);
constexpr int kPaperTop = 11;    // the first rule is at 30
constexpr int kPaperPitch = 20;  // as the rules of the main window have always been, whatever the font
constexpr int kMenuRoom = 22;    // kept free for the menu until it is there

}  // namespace

MainPage::MainPage() : paper_(new Paper(kPaperTop, kPaperPitch, this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, kMenuRoom, 0, 0);
  layout->addWidget(paper_);
  const QRect room = screen()->availableGeometry();
  resize(kPageSize.boundedTo(room.size()));
  move(room.topLeft());
}

void MainPage::SetMenu(const std::vector<MenuItem>& items) {
  auto* menu = new QMenuBar(this);
  FillMenu(*menu, items, [this](int id) {
    if (onCommand) onCommand(id);
  });
  layout()->setContentsMargins(0, 0, 0, 0);
  layout()->setMenuBar(menu);
}

void MainPage::ShowPage(const PaperStyle& style, const std::vector<PageLine>& page) {
  if (!page_) {
    page_ = new PageView(style, kPaperTop, kPaperPitch, paper_);
    auto* layout = new QVBoxLayout(paper_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(page_);
    setFocusProxy(page_);
    page_->setFocus();
  }
  page_->Show(page);
}

QPoint MainPage::PagePlace() const {
  return paper_->mapToGlobal(QPoint(0, 0));
}

void MainPage::closeEvent(QCloseEvent* event) {
  event->accept();
  if (onClosed) onClosed();
}

}  // namespace veld
