#include "windows/model_export.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include "hull/fold_check.h"
#include "mesh_export/mesh_files.h"

namespace tolmar::gui {

namespace {

QString text(bool fr, const char* french, const char* english) {
  return QString::fromUtf8(fr ? french : english);
}

const char* extensionOf(int format) { return format == 1 ? ".obj" : ".stl"; }

}  // namespace

ModelExportDialog::ModelExportDialog(QWidget* board, const HullStore& h)
    : QDialog(board),
      h_(h),
      format_(new QComboBox(this)),
      unit_(new QComboBox(this)),
      scale_(new QLineEdit(this)),
      path_(new QLineEdit(this)),
      message_(new QLabel(this)) {
  const bool fr = h.langue == 0;
  setObjectName("modelExport");
  setWindowTitle(text(fr, "Modèle 3D (STL, OBJ)", "3-D model (STL, OBJ)"));
  format_->setObjectName("modelFormat");
  format_->addItem(text(fr, "STL (binaire, la coque fermée)", "STL (binary, the closed hull)"));
  format_->addItem(
      text(fr, "OBJ (un groupe par bordé, les lignes)", "OBJ (a group per plate, the lines)"));
  unit_->setObjectName("modelUnit");
  unit_->addItem(text(fr, "mètres", "metres"));
  unit_->addItem(text(fr, "millimètres", "millimetres"));
  scale_->setObjectName("modelScale");
  scale_->setToolTip(text(fr, "1:N pour une maquette au 1/N ; 1:1 en vraie grandeur",
                          "1:N for a model at 1/N; 1:1 full size"));
  path_->setObjectName("modelPath");
  message_->setObjectName("modelMessage");
  message_->setWordWrap(true);

  QSettings s;
  s.beginGroup("model3d");
  format_->setCurrentIndex(s.value("format", 0).toInt() == 1 ? 1 : 0);
  unit_->setCurrentIndex(s.value("unit", 0).toInt() == 1 ? 1 : 0);
  scale_->setText(s.value("scale", "1:1").toString());
  s.endGroup();

  auto* browse = new QPushButton(text(fr, "Parcourir…", "Browse…"), this);
  browse->setObjectName("modelBrowse");
  connect(browse, &QPushButton::clicked, this, &ModelExportDialog::browse);
  auto* file = new QHBoxLayout;
  file->addWidget(path_, 1);
  file->addWidget(browse);
  // The extension follows the format while the name is the user's.
  connect(format_, &QComboBox::currentIndexChanged, this, [this](int f) {
    QString p = path_->text();
    if (p.endsWith(".stl", Qt::CaseInsensitive) || p.endsWith(".obj", Qt::CaseInsensitive))
      path_->setText(p.left(p.size() - 4) + extensionOf(f));
  });

  auto* form = new QFormLayout;
  form->addRow(text(fr, "Format", "Format"), format_);
  form->addRow(text(fr, "Unité", "Unit"), unit_);
  form->addRow(text(fr, "Échelle", "Scale"), scale_);
  form->addRow(text(fr, "Fichier", "File"), file);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Save)->setText(text(fr, "Enregistrer", "Save"));
  buttons->button(QDialogButtonBox::Cancel)->setText(text(fr, "Annuler", "Cancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    if (save()) accept();
  });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* box = new QVBoxLayout(this);
  box->addLayout(form);
  box->addWidget(message_);
  box->addWidget(buttons);
  setMinimumWidth(480);
}

void ModelExportDialog::browse() {
  const int f = format_->currentIndex();
  const QString p = QFileDialog::getSaveFileName(this, windowTitle(), path_->text(),
                                                 f == 1 ? "OBJ (*.obj)" : "STL (*.stl)");
  if (p.isEmpty()) return;
  path_->setText(p.endsWith(extensionOf(f), Qt::CaseInsensitive) ? p : p + extensionOf(f));
}

bool ModelExportDialog::save() {
  const bool fr = h_.langue == 0;
  MeshUnits u;
  u.millimetres = unit_->currentIndex() == 1;
  if (!parseScale(scale_->text().trimmed().toStdString(), u.scaleDenominator)) {
    message_->setText(text(fr, "L'échelle s'écrit 1:N avec N supérieur à 0.",
                           "The scale is written 1:N with N above 0."));
    scale_->setFocus();
    return false;
  }
  QString p = path_->text().trimmed();
  if (p.isEmpty()) {
    message_->setText(text(fr, "Choisissez un fichier.", "Choose a file."));
    path_->setFocus();
    return false;
  }
  const int f = format_->currentIndex();
  if (!p.endsWith(extensionOf(f), Qt::CaseInsensitive)) p += extensionOf(f);
  const io::WriteResult w =
      writeHullModel(h_, f == 1 ? MeshFormat::obj : MeshFormat::stl, u, p.toStdString());
  if (!w.ok()) {
    message_->setText((fr ? QString::fromUtf8("Impossible d'écrire ") : QString("Cannot write ")) +
                      p + (fr ? " : " : ": ") + QString::fromStdString(w.message));
    return false;
  }
  path_->setText(p);
  message_->clear();
  saveSettings();
  return true;
}

void ModelExportDialog::saveSettings() const {
  QSettings s;
  s.beginGroup("model3d");
  s.setValue("format", format_->currentIndex());
  s.setValue("unit", unit_->currentIndex());
  s.setValue("scale", scale_->text().trimmed());
  s.endGroup();
}

void saveHullModel(QWidget* board, const HullStore& h) {
  const FoldReport folds = checkFolds(h);
  if (folds.folded()) {
    QMessageBox::warning(
        board, QString::fromUtf8(h.langue == 0 ? "Modèle 3D (STL, OBJ)" : "3-D model (STL, OBJ)"),
        QString::fromStdString(folds.message(h.langue)));
    return;
  }
  ModelExportDialog d(board, h);
  d.exec();
}

}  // namespace tolmar::gui
