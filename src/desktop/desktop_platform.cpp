#include "desktop/desktop_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "desktop/fonts_ahead.h"
#include "desktop/form_window.h"
#include "desktop/main_window.h"
#include "desktop/program_icon.h"
#include "platform/progress_form.h"

namespace veld {

namespace {

constexpr int kUnseen = 1000;  // milliseconds after which a window that nobody sees starts all the same

/// "Text Files (*.TXT)" of ".txt" for the file dialog, which shows the name as it is and takes what stands in the last
/// brackets for its own.
QString FilterLine(const FileFilter& filter) {
  const QString extension = ToQtLine(filter.Extension);
  const QString patterns = extension.isEmpty() ? "*" : "*" + extension + " *" + extension.toUpper();
  return ToQtLine(filter.Name) + " (" + patterns + ")";
}

/// The toolkit's own dialog has its filters in a combo; the desktop's has none of its widgets.
QComboBox* FilterCombo(const QFileDialog& dialog) {
  return dialog.findChild<QComboBox*>("fileTypeCombo");
}

std::size_t ChosenFilter(const QFileDialog& dialog) {
  const QComboBox* types = FilterCombo(dialog);
  const qsizetype filter = types ? types->currentIndex() : dialog.nameFilters().indexOf(dialog.selectedNameFilter());
  return static_cast<std::size_t>(std::max<qsizetype>(filter, 0));
}

std::string ChosenFile(const QFileDialog& dialog) {
  const QStringList files = dialog.selectedFiles();
  return files.isEmpty() ? std::string() : QFile::encodeName(files.first()).toStdString();
}

/// Gives the name in a save dialog the extension of the filter just chosen, if it had that of another one.
void FollowFilter(QFileDialog& dialog, std::span<const FileFilter> filters) {
  const std::string_view extension = filters[ChosenFilter(dialog)].Extension;
  dialog.setDefaultSuffix(ToQtLine(extension).remove('.'));
  const QString name = dialog.selectedFiles().value(0).section('/', -1);
  for (const FileFilter& filter : filters) {
    const QString old = ToQtLine(filter.Extension);
    if (old.isEmpty() || extension.empty() || !name.endsWith(old, Qt::CaseInsensitive)) continue;
    return dialog.selectFile(name.chopped(old.size()) + ToQtLine(extension));
  }
}

/// Runs what can wait when the window has been painted for the first time: the player sees it at once, and waits for
/// the rest with it before him.
class AfterFirstPaint : public QObject {
 public:
  AfterFirstPaint(QWidget& window, std::function<void()> start) : QObject(&window), start_(std::move(start)) {
    window.winId();  // makes the window that is watched
    window.windowHandle()->installEventFilter(this);
    QTimer::singleShot(kUnseen, this, [this] { Start(); });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    // It is painted while this event is handled, or on the next turn of the loop.
    if (event->type() == QEvent::Expose) {
      QTimer::singleShot(0, this, [this] { QTimer::singleShot(0, this, [this] { Start(); }); });
    }
    return false;
  }

 private:
  void Start() {
    if (const auto start = std::exchange(start_, nullptr)) start();
  }

  std::function<void()> start_;
};

/// Puts a dialog on top of the others for as long as it runs.
class OnTop {
 public:
  OnTop(std::vector<QWidget*>& open, QWidget& dialog) : open_(open) { open_.push_back(&dialog); }
  ~OnTop() { open_.pop_back(); }
  OnTop(const OnTop&) = delete;
  OnTop& operator=(const OnTop&) = delete;

 private:
  std::vector<QWidget*>& open_;
};

}  // namespace

struct DesktopPlatform::Progress : ProgressForm {
  using ProgressForm::ProgressForm;

  std::unique_ptr<FormWindow> window;
};

DesktopPlatform::DesktopPlatform() : DesktopPlatform(Settings()) {}

DesktopPlatform::DesktopPlatform(Settings settings) : settings_(settings) {
  SetUpLook();
}

DesktopPlatform::~DesktopPlatform() = default;

bool DesktopPlatform::CopyText(std::string_view text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
  return true;
}

/// The style of pages, made when the first one is: fonts come last, as long as they are still being read.
const PaperStyle& DesktopPlatform::Style() {
  if (style_) return *style_;
  if (settings_.Fonts) settings_.Fonts->Wait();
  if (QFontDatabase::families().isEmpty()) {
    throw std::runtime_error(
        "it finds no font to write with: install one, for example with 'apt install fonts-liberation'.");
  }
  return style_.emplace(MakePaperStyle(QApplication::font()));
}

// --- Windows -----------------------------------------------------------------------------------------------------

/// The window that a new dialog stands over.
QWidget* DesktopPlatform::Top() const {
  for (auto window = open_.rbegin(); window != open_.rend(); ++window) {
    if ((*window)->isVisible()) return *window;
  }
  QWidget* const beside = beside_.Top([](const FormWindow& window) { return window.isVisible(); });
  return beside ? beside : main_.get();
}

void DesktopPlatform::RunForm(Form& form) {
  FormWindow window(form, Style(), Top());
  {
    const OnTop onTop(open_, window);
    window.Run();
  }
  SweepSoon();
}

void DesktopPlatform::ShowWindow(std::shared_ptr<Form> form) {
  auto page = std::make_unique<FormWindow>(*form, Style(), main_.get());
  FormWindow& window = beside_.Add(std::move(form), std::move(page));
  window.onOver = [this] { SweepSoon(); };
  window.onError = [this](std::exception_ptr error) { Fail(std::move(error)); };
  window.ShowAt(main_ ? main_->PagePlace() : QPoint());
}

/// Closed windows are swept away when no dialog runs that could still stand over one, or have been opened by a handler
/// of one.
void DesktopPlatform::Sweep() {
  if (open_.empty()) beside_.Sweep();
}

void DesktopPlatform::SweepSoon() {
  QTimer::singleShot(0, &timers_, [this] { Sweep(); });
}

/// Runs a part of the start when what was shown before it has been painted.
void DesktopPlatform::SoonAfter(std::function<void()> act) {
  QTimer::singleShot(0, main_.get(), [this, act] { QTimer::singleShot(0, main_.get(), [this, act] { Act(act); }); });
}

/// Runs a handler of the main window. What it throws must not pass through the toolkit.
void DesktopPlatform::Act(const std::function<void()>& act) {
  try {
    act();
  } catch (...) {
    Fail(std::current_exception());
  }
}

void DesktopPlatform::Fail(std::exception_ptr error) {
  if (!error_) error_ = std::move(error);
  CloseMainWindow();
}

void DesktopPlatform::RunMainWindow(const MainWindow& window) {
  main_ = std::make_unique<MainPage>();
  main_->setWindowTitle(title_.isEmpty() ? ToQtTitle(window.Title) : title_);
  if (page_.empty()) page_ = window.Page;
  QEventLoop loop;
  mainLoop_ = &loop;
  main_->onCommand = [&](int id) {
    if (window.onCommand) Act([&] { window.onCommand(id); });
  };
  main_->onClosed = [&] { loop.quit(); };
  // The paper needs no font and no picture. The menu, the icon and the page come when the player has the window before
  // him.
  new AfterFirstPaint(*main_, [&] {
    Act([&] {
      Style();
      main_->SetMenu(window.Menu);
      QApplication::setWindowIcon(ProgramIcon());
      SoonAfter([&] {
        main_->ShowPage(Style(), page_);
        if (window.onStart) window.onStart();
      });
    });
  });
  main_->show();
  loop.exec();
  mainLoop_ = nullptr;
  beside_.Clear();
  main_.reset();
  if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
}

void DesktopPlatform::CloseMainWindow() {
  if (main_) main_->hide();
  if (mainLoop_) mainLoop_->quit();
}

void DesktopPlatform::SetMainTitle(std::string_view title) {
  title_ = ToQtTitle(title);
  if (main_) main_->setWindowTitle(title_);
}

void DesktopPlatform::ShowPage(const std::vector<PageLine>& page) {
  page_ = page;
  if (main_ && style_) main_->ShowPage(*style_, page_);
}

// --- Messages, files, progress -----------------------------------------------------------------------------------

bool DesktopPlatform::RunFileDialog(QFileDialog& dialog, std::span<const FileFilter> filters) {
  dialog.setOption(QFileDialog::DontUseNativeDialog, !settings_.UsesNativeFileDialogs);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  QStringList lines;
  for (const FileFilter& filter : filters) lines << FilterLine(filter);
  if (!lines.isEmpty()) dialog.setNameFilters(lines);
  if (QComboBox* types = FilterCombo(dialog)) {  // the dialog takes double blanks out of names
    for (int i = 0; i < types->count(); ++i) types->setItemText(i, ToQtLine(filters[static_cast<std::size_t>(i)].Name));
  }
  const OnTop onTop(open_, dialog);
  return dialog.exec() == QDialog::Accepted;
}

std::optional<std::string> DesktopPlatform::DoAskOpenPath(const std::string& caption,
                                                          std::span<const FileFilter> filters) {
  QFileDialog dialog(Top(), ToQtTitle(caption));
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (!RunFileDialog(dialog, filters)) return std::nullopt;
  return ChosenFile(dialog);
}

std::optional<ChosenPath> DesktopPlatform::DoAskSavePath(const std::string& caption,
                                                         std::span<const FileFilter> filters,
                                                         const std::string& suggestedName) {
  QFileDialog dialog(Top(), ToQtTitle(caption));
  dialog.setAcceptMode(QFileDialog::AcceptSave);  // which asks before a file is overwritten
  if (!suggestedName.empty()) dialog.selectFile(QFile::decodeName(QByteArray::fromStdString(suggestedName)));
  if (!filters.empty()) {
    dialog.setDefaultSuffix(ToQtLine(filters.front().Extension).remove('.'));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&] { FollowFilter(dialog, filters); });
  }
  if (!RunFileDialog(dialog, filters)) return std::nullopt;
  return ChosenPath{ChosenFile(dialog), ChosenFilter(dialog)};
}

void DesktopPlatform::BeginProgress(std::string_view caption, std::string_view text) {
  EndProgress();
  progress_ = std::make_unique<Progress>(caption, text);
  Progress& progress = *progress_;
  progress.window = std::make_unique<FormWindow>(progress.form, Style(), Top());
  open_.push_back(progress.window.get());
  progress.window->ShowForProgress();
  progress.Looked();
  QCoreApplication::processEvents();
}

bool DesktopPlatform::ShowProgress(int percent) {
  if (!progress_) return true;
  if (progress_->IsLookDue()) {
    progress_->ShowPercent(percent);
    QCoreApplication::processEvents();
    progress_->Looked();
  }
  return !progress_->IsCancelled();
}

void DesktopPlatform::EndProgress() {
  if (!progress_) return;
  std::erase(open_, progress_->window.get());
  progress_->window->hide();
  progress_.reset();
  SweepSoon();
}

}  // namespace veld
