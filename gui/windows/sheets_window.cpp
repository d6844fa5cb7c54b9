#include "windows/sheets_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QVBoxLayout>

#include "export/text_sink.h"
#include "io/safe_write.h"
#include "qtdraw/image_surface.h"
#include "qtdraw/sheets_pdf.h"
#include "sheets/bill_of_materials.h"
#include "sheets/sheet_plan.h"
#include "sheets/sheets_dxf.h"
#include "sheets/sheets_pages.h"
#include "sheets/sheets_svg.h"
#include "text/utf8.h"
#include "windows/busy_cursor.h"

namespace tolmar::gui {

using namespace tolmar::sheets;

namespace {

QString q(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

QDoubleSpinBox* spin(QWidget* parent, double lo, double hi, int decimals) {
  auto* s = new QDoubleSpinBox(parent);
  s->setRange(lo, hi);
  s->setDecimals(decimals);
  return s;
}

constexpr int kPictureWidth = 760;  // dots

}  // namespace

SheetsWindow::SheetsWindow(QWidget* board, const HullStore& h)
    : QWidget(board, Qt::Window),
      board_(h),
      watch_(h),
      h_(std::make_unique<HullStore>(h)),
      langue_(h.langue),
      dialog_(std::make_unique<CmDialog1>(this)) {
  setObjectName("sheets");
  buildControls();
  setTexts();
  loadSettings();
  compute();
}

SheetsWindow::~SheetsWindow() = default;

void SheetsWindow::buildControls() {
  auto* choices = new QGridLayout;
  int row = 0;
  auto add = [&](QWidget* w) {
    auto* caption = new QLabel(this);
    captions_.push_back(caption);
    choices->addWidget(caption, row, 0);
    choices->addWidget(w, row++, 1);
  };
  size_ = new QComboBox(this);
  size_->setObjectName("sheetSize");
  for (const SheetSize& s : kSheetSizes)
    size_->addItem(QString("%1 x %2").arg(s.lengthMm).arg(s.widthMm));
  size_->addItem(QString());  // a typed size
  add(size_);
  length_ = spin(this, 100, 20000, 0);
  length_->setObjectName("sheetLength");
  add(length_);
  width_ = spin(this, 100, 20000, 0);
  width_->setObjectName("sheetWidth");
  add(width_);
  margin_ = spin(this, 0, 500, 1);
  margin_->setObjectName("margin");
  add(margin_);
  kerf_ = spin(this, 0.1, 50, 1);
  kerf_->setObjectName("kerf");
  add(kerf_);
  joint_ = new QComboBox(this);
  joint_->setObjectName("joint");
  joint_->addItems({QString(), QString(), QString()});
  add(joint_);
  ratio_ = spin(this, 1, 30, 1);
  ratio_->setObjectName("scarfRatio");
  add(ratio_);
  strap_ = spin(this, 10, 1000, 0);
  strap_->setObjectName("strapWidth");
  add(strap_);
  rotate_ = new QCheckBox(this);
  rotate_->setObjectName("rotate90");
  choices->addWidget(rotate_, row++, 0, 1, 2);

  connect(size_, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (i >= 0 && i < static_cast<int>(std::size(kSheetSizes))) {
      length_->setValue(kSheetSizes[i].lengthMm);
      width_->setValue(kSheetSizes[i].widthMm);
    }
  });
  auto typed = [this] {
    int i = static_cast<int>(std::size(kSheetSizes));
    for (int k = 0; k < i; ++k)
      if (kSheetSizes[k].lengthMm == length_->value() && kSheetSizes[k].widthMm == width_->value())
        i = k;
    const QSignalBlocker b(size_);
    size_->setCurrentIndex(i);
  };
  connect(length_, &QDoubleSpinBox::valueChanged, this, typed);
  connect(width_, &QDoubleSpinBox::valueChanged, this, typed);

  computeButton_ = new QPushButton(this);
  computeButton_->setObjectName("compute");
  dxfButton_ = new QPushButton(this);
  dxfButton_->setObjectName("saveDxf");
  svgButton_ = new QPushButton(this);
  svgButton_->setObjectName("saveSvg");
  pdfButton_ = new QPushButton(this);
  pdfButton_->setObjectName("savePdf");
  connect(computeButton_, &QPushButton::clicked, this, [this] { compute(); });
  connect(dxfButton_, &QPushButton::clicked, this, [this] { saveDxf(); });
  connect(svgButton_, &QPushButton::clicked, this, [this] { saveSvg(); });
  connect(pdfButton_, &QPushButton::clicked, this, [this] { savePdf(); });

  message_ = new QLabel(this);
  message_->setObjectName("message");
  message_->setWordWrap(true);
  bom_ = new QPlainTextEdit(this);
  bom_->setObjectName("bom");
  bom_->setReadOnly(true);
  bom_->setLineWrapMode(QPlainTextEdit::NoWrap);

  auto* left = new QVBoxLayout;
  left->addLayout(choices);
  left->addWidget(computeButton_);
  left->addWidget(dxfButton_);
  left->addWidget(svgButton_);
  left->addWidget(pdfButton_);
  left->addWidget(message_);
  left->addStretch(1);

  picture_ = new QLabel;
  picture_->setObjectName("sheetsPicture");
  picture_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  scroll_ = new QScrollArea(this);
  scroll_->setWidget(picture_);
  scroll_->setMinimumWidth(kPictureWidth + 24);
  auto* right = new QVBoxLayout;
  right->addWidget(scroll_, 3);
  right->addWidget(bom_, 2);

  auto* all = new QHBoxLayout(this);
  all->addLayout(left);
  all->addLayout(right, 1);
  resize(1120, 760);
}

void SheetsWindow::setTexts() {
  const bool fr = langue_ == 0;
  setWindowTitle(fr ? "Panneaux de contreplaqué" : "Plywood sheets");
  const char* captions[] = {fr ? "Feuille (mm)" : "Sheet (mm)",
                            fr ? "Longueur (mm)" : "Length (mm)",
                            fr ? "Largeur (mm)" : "Width (mm)",
                            fr ? "Marge (mm)" : "Margin (mm)",
                            fr ? "Trait de scie (mm)" : "Kerf (mm)",
                            fr ? "Joint" : "Joint",
                            fr ? "Pente du biseau (x épaisseur)" : "Scarf ratio (x thickness)",
                            fr ? "Largeur du couvre-joint (mm)" : "Butt strap width (mm)"};
  for (std::size_t i = 0; i < captions_.size(); ++i) captions_[i]->setText(q(captions[i]));
  size_->setItemText(size_->count() - 1, q(fr ? "autre" : "other"));
  joint_->setItemText(0, q(fr ? "biseau" : "scarf"));
  joint_->setItemText(1, q(fr ? "couvre-joint" : "butt strap"));
  joint_->setItemText(2, q(fr ? "aucun" : "none"));
  rotate_->setText(q(fr ? "Tourner à 90° (contre le fil)" : "Allow 90° (across the grain)"));
  computeButton_->setText(q(fr ? "Disposer" : "Lay out"));
  dxfButton_->setText(q(fr ? "Enregistrer les DXF…" : "Save DXF files…"));
  svgButton_->setText(q(fr ? "Enregistrer le SVG…" : "Save SVG…"));
  pdfButton_->setText(q(fr ? "Enregistrer le PDF…" : "Save PDF…"));
}

void SheetsWindow::loadSettings() {
  QSettings s("Tolmar", "tolmar");
  s.beginGroup("sheets");
  const SheetOptions d;
  length_->setValue(s.value("length", d.lengthMm).toDouble());
  width_->setValue(s.value("width", d.widthMm).toDouble());
  margin_->setValue(s.value("margin", d.marginMm).toDouble());
  kerf_->setValue(s.value("kerf", d.kerfMm).toDouble());
  joint_->setCurrentIndex(std::clamp(s.value("joint", 0).toInt(), 0, 2));
  ratio_->setValue(s.value("scarfRatio", d.scarfRatio).toDouble());
  strap_->setValue(s.value("strapWidth", d.strapWidthMm).toDouble());
  rotate_->setChecked(s.value("rotate90", false).toBool());
}

void SheetsWindow::saveSettings() const {
  QSettings s("Tolmar", "tolmar");
  s.beginGroup("sheets");
  s.setValue("length", length_->value());
  s.setValue("width", width_->value());
  s.setValue("margin", margin_->value());
  s.setValue("kerf", kerf_->value());
  s.setValue("joint", joint_->currentIndex());
  s.setValue("scarfRatio", ratio_->value());
  s.setValue("strapWidth", strap_->value());
  s.setValue("rotate90", rotate_->isChecked());
}

SheetOptions SheetsWindow::options() const {
  SheetOptions o;
  o.lengthMm = length_->value();
  o.widthMm = width_->value();
  o.marginMm = margin_->value();
  o.kerfMm = kerf_->value();
  o.joint = joint_->currentIndex() == 0   ? JointKind::scarf
            : joint_->currentIndex() == 1 ? JointKind::butt
                                          : JointKind::none;
  o.scarfRatio = ratio_->value();
  o.strapWidthMm = strap_->value();
  o.rotate90 = rotate_->isChecked();
  return o;
}

void SheetsWindow::compute() {
  BusyCursor busy;
  saveSettings();
  plan_ = planSheets(*h_, options());
  showPlan();
}

void SheetsWindow::follow() {
  if (!watch_.changed()) return;
  *h_ = board_;
  compute();
}

void SheetsWindow::showPlan() {
  const bool ok = plan_.error.empty();
  message_->setText(q(plan_.error));
  for (QPushButton* b : {dxfButton_, svgButton_, pdfButton_}) b->setEnabled(ok);
  if (!ok) {
    picture_->setPixmap(QPixmap());
    picture_->resize(1, 1);
    bom_->clear();
    return;
  }
  const Bom bom = billOfMaterials(plan_);
  bom_->setPlainText(q([&] {
    std::string all;
    for (const std::string& line : bomLines(plan_, bom, langue_)) all += line + "\n";
    return all;
  }()));
  // Every sheet one under the other, to one scale.
  const int caption = 22, gap = 14;
  const double dotsPerMm = (kPictureWidth - 20) / plan_.options.lengthMm;
  int height = gap;
  for (const Sheet& s : plan_.sheets)
    height += caption + static_cast<int>(s.widthMm * dotsPerMm) + gap;
  qtdraw::ImageSurface surface(QSize(kPictureWidth, height));
  const float twipsPerDot = 15, k = static_cast<float>(dotsPerMm) * twipsPerDot;
  float top = gap * twipsPerDot;
  const bool fr = langue_ == 0;
  for (std::size_t i = 0; i < plan_.sheets.size(); ++i) {
    const Sheet& s = plan_.sheets[i];
    surface.FontSize = 9;
    surface.CurrentX = 10 * twipsPerDot;
    surface.CurrentY = top;
    surface.Print(QString("%1 %2 / %3 — %4 mm")
                      .arg(fr ? "Feuille" : "Sheet")
                      .arg(i + 1)
                      .arg(plan_.sheets.size())
                      .arg(s.thicknessMm)
                      .toStdString());
    top += caption * twipsPerDot;
    surface.FontSize = 6;
    const float bottom = top + static_cast<float>(s.widthMm) * k;
    drawSheet(surface, plan_, static_cast<int>(i), 10 * twipsPerDot, bottom, k, langue_);
    top = bottom + gap * twipsPerDot;
  }
  const QImage img = surface.picture();
  picture_->setPixmap(QPixmap::fromImage(img));
  picture_->resize(img.size());
}

std::string SheetsWindow::stem() const {
  std::string s(utf8Prefix(h_->hullName, 15));
  for (char& c : s)
    if (c == '/' || c == '\\') c = '_';
  return s.empty() ? "HULL" : s;
}

std::string SheetsWindow::errorTitle() const {
  return langue_ == 0 ? "Tolmar - Panneaux de contreplaqué" : "Tolmar - Plywood sheets";
}

bool SheetsWindow::write(const std::string& path, const std::string& bytes) {
  if (const io::WriteResult w = io::writeFileSafely(path, bytes); !w.ok()) {
    dialog_->showError(errorTitle(), w.message);
    return false;
  }
  return true;
}

bool SheetsWindow::saveDxf() {
  if (!plan_.error.empty() || plan_.sheets.empty()) return false;
  SaveRequest r;
  r.title = langue_ == 0 ? "Tolmar - Enregistrer les panneaux en fichiers DXF"
                         : "Tolmar - Save the sheets as DXF files";
  r.filter = "Sheet (*_SHEET01.DXF)|*.DXF";
  r.defaultName = sheetDxfName(stem(), 0);
  const auto choice = dialog_->askSaveFile(r);
  if (!choice) return false;
  // The name chosen for the first sheet gives the others theirs.
  QFileInfo first(QString::fromStdString(choice->path));
  QString base = first.completeBaseName();
  if (base.endsWith("_SHEET01", Qt::CaseInsensitive)) base.chop(8);
  BusyCursor busy;
  // All the sheets or none: each file is written and synced before any
  // replaces its former self.
  std::vector<std::pair<std::string, std::string>> files;
  for (int s = 0; s < static_cast<int>(plan_.sheets.size()); ++s) {
    StringSink dxf;
    writeSheetDxf(dxf, plan_, s, h_->hullName, langue_);
    files.emplace_back(first.dir()
                           .filePath(QString::fromStdString(sheetDxfName(base.toStdString(), s)))
                           .toStdString(),
                       dxf.text());
  }
  if (const io::WriteResult w = io::writeFilesSafely(files); !w.ok()) {
    dialog_->showError(errorTitle(), w.message);
    return false;
  }
  // The sheets of an earlier, longer plan under the same name would be cut
  // with this one's.
  std::error_code ec;
  for (const std::filesystem::path& f :
       staleSheetFiles(first.dir().path().toStdString(), base.toStdString(),
                       static_cast<int>(plan_.sheets.size())))
    std::filesystem::remove(f, ec);
  return true;
}

bool SheetsWindow::saveSvg() {
  if (!plan_.error.empty() || plan_.sheets.empty()) return false;
  SaveRequest r;
  r.title =
      langue_ == 0 ? "Tolmar - Enregistrer les panneaux en SVG" : "Tolmar - Save the sheets as SVG";
  r.filter = "SVG (*.svg)|*.svg";
  r.defaultName = stem() + "_SHEETS.svg";
  const auto choice = dialog_->askSaveFile(r);
  if (!choice) return false;
  BusyCursor busy;
  return write(choice->path, sheetsSvg(plan_, h_->hullName, langue_));
}

bool SheetsWindow::savePdf() {
  if (!plan_.error.empty() || plan_.sheets.empty()) return false;
  SaveRequest r;
  r.title =
      langue_ == 0 ? "Tolmar - Enregistrer les panneaux en PDF" : "Tolmar - Save the sheets as PDF";
  r.filter = "PDF (*.pdf)|*.pdf";
  r.defaultName = stem() + "_SHEETS.pdf";
  const auto choice = dialog_->askSaveFile(r);
  if (!choice) return false;
  BusyCursor busy;
  const QByteArray pdf = qtdraw::sheetsPdf(plan_, h_->hullName, langue_);
  if (pdf.isEmpty()) {
    dialog_->showError(errorTitle(), langue_ == 0 ? "Le document PDF n'a pas pu être commencé."
                                                  : "The PDF document could not be started.");
    return false;
  }
  return write(choice->path, std::string(pdf.constData(), static_cast<std::size_t>(pdf.size())));
}

QWidget* openSheetsWindow(QWidget* board, const HullStore& h) { return new SheetsWindow(board, h); }

}  // namespace tolmar::gui
