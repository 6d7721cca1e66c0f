#include "soundconvwindow.h"

#include "soundconversion.h"

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

QPushButton* makeButton(const char* name, const QString& text, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

} // namespace

SoundConvWindow::SoundConvWindow(QWidget* parent)
    : QWidget(parent), m_files(new QListWidget(this)),
      m_beside(new QRadioButton(QStringLiteral("Beside each &source file"), this)),
      m_intoFolder(new QRadioButton(QStringLiteral("Into &folder:"), this)),
      m_folder(new QLineEdit(this)), m_browse(makeButton("btnBrowse", tr("&Browse..."), this)),
      m_convert(makeButton("btnConvert", tr("&Convert"), this)), m_progress(new QProgressBar(this)),
      m_log(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("frmSoundConv"));
    setWindowTitle(QStringLiteral("Sound Converter"));
    m_files->setObjectName(QStringLiteral("lstFiles"));
    m_files->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_beside->setObjectName(QStringLiteral("optBeside"));
    m_intoFolder->setObjectName(QStringLiteral("optFolder"));
    m_folder->setObjectName(QStringLiteral("txtFolder"));
    m_progress->setObjectName(QStringLiteral("prgConvert"));
    m_log->setObjectName(QStringLiteral("txtLog"));
    m_log->setReadOnly(true);
    m_beside->setChecked(true);

    auto* add = makeButton("btnAdd", tr("&Add Files..."), this);
    auto* remove = makeButton("btnRemove", tr("&Remove"), this);
    auto* close = makeButton("btnClose", tr("Close"), this);

    auto* fileButtons = new QVBoxLayout;
    fileButtons->addWidget(add);
    fileButtons->addWidget(remove);
    fileButtons->addStretch();
    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel(tr("Sound files (WAV, FLAC, Ogg, AIFF...) to turn into Sun "
                                  "audio (.au, 8000 Hz, mono, 8-bit mu-law):"),
                               this),
                    0, 0, 1, 3);
    grid->addWidget(m_files, 1, 0, 1, 2);
    grid->addLayout(fileButtons, 1, 2);
    grid->addWidget(m_beside, 2, 0, 1, 3);
    grid->addWidget(m_intoFolder, 3, 0);
    grid->addWidget(m_folder, 3, 1);
    grid->addWidget(m_browse, 3, 2);
    grid->addWidget(m_progress, 4, 0, 1, 2);
    grid->addWidget(m_convert, 4, 2);
    grid->addWidget(m_log, 5, 0, 1, 3);
    grid->addWidget(close, 6, 2);
    resize(560, 420);

    connect(add, &QPushButton::clicked, this, &SoundConvWindow::chooseFiles);
    connect(remove, &QPushButton::clicked, this, [this] {
        qDeleteAll(m_files->selectedItems());
        updateButtons();
    });
    connect(m_browse, &QPushButton::clicked, this, &SoundConvWindow::chooseFolder);
    connect(m_intoFolder, &QRadioButton::toggled, this, &SoundConvWindow::updateButtons);
    connect(m_folder, &QLineEdit::textChanged, this, &SoundConvWindow::updateButtons);
    connect(m_convert, &QPushButton::clicked, this, &SoundConvWindow::convertAll);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    updateButtons();
}

void SoundConvWindow::addFiles(const QStringList& files) {
    m_files->addItems(files);
    updateButtons();
}

void SoundConvWindow::chooseFiles() {
    addFiles(QFileDialog::getOpenFileNames(
        this, tr("Add Sound Files"), {},
        tr("Sounds (*.wav *.flac *.ogg *.oga *.aif *.aiff *.au *.snd *.voc);;All Files (*)")));
}

void SoundConvWindow::chooseFolder() {
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder for the .au Files"), m_folder->text());
    if (!folder.isEmpty()) {
        m_folder->setText(folder);
        m_intoFolder->setChecked(true);
    }
}

void SoundConvWindow::updateButtons() {
    m_folder->setEnabled(m_intoFolder->isChecked());
    m_browse->setEnabled(m_intoFolder->isChecked());
    m_convert->setEnabled(m_files->count() > 0 &&
                          (m_beside->isChecked() || !m_folder->text().trimmed().isEmpty()));
}

int SoundConvWindow::convertAll() {
    const std::string folder =
        m_intoFolder->isChecked() ? m_folder->text().trimmed().toStdString() : std::string();
    const int count = m_files->count();
    int failed = 0;
    m_progress->setRange(0, count);
    m_progress->setValue(0);
    m_convert->setEnabled(false);
    for (int i = 0; i < count; ++i) {
        const ConversionResult result = convertToAu(m_files->item(i)->text().toStdString(), folder);
        m_log->appendPlainText(QString::fromStdString(result.ok ? "Written: " + result.output
                                                                : "Failed: " + result.error));
        failed += result.ok ? 0 : 1;
        m_progress->setValue(i + 1);
        // Several long files take a while: keep the bar and the log moving.
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    m_log->appendPlainText(tr("%1 of %2 converted.").arg(count - failed).arg(count));
    updateButtons();
    return failed;
}

} // namespace orvelin
