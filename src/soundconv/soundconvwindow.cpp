#include "soundconvwindow.h"

#include "accessiblenames.h"
#include "soundconversion.h"
#include "windowtexts.h"

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

QPushButton* makeButton(const char* name, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

QString text(std::string_view name) {
    return uiText("frmSoundConv", name);
}

} // namespace

SoundConvWindow::SoundConvWindow(QWidget* parent)
    : QWidget(parent), m_files(new QListWidget(this)), m_beside(new QRadioButton(this)),
      m_intoFolder(new QRadioButton(this)), m_folder(new QLineEdit(this)),
      m_browse(makeButton("btnBrowse", this)), m_convert(makeButton("btnConvert", this)),
      m_progress(new QProgressBar(this)), m_log(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("frmSoundConv"));
    m_files->setObjectName(QStringLiteral("lstFiles"));
    m_files->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_beside->setObjectName(QStringLiteral("optBeside"));
    m_intoFolder->setObjectName(QStringLiteral("optFolder"));
    m_folder->setObjectName(QStringLiteral("txtFolder"));
    m_progress->setObjectName(QStringLiteral("prgConvert"));
    m_log->setObjectName(QStringLiteral("txtLog"));
    m_log->setReadOnly(true);
    m_beside->setChecked(true);

    auto* add = makeButton("btnAdd", this);
    auto* remove = makeButton("btnRemove", this);
    auto* close = makeButton("btnClose", this);
    auto* files = new QLabel(this);
    files->setObjectName(QStringLiteral("lblFiles"));
    files->setWordWrap(true);
    files->setBuddy(m_files);

    auto* fileButtons = new QVBoxLayout;
    fileButtons->addWidget(add);
    fileButtons->addWidget(remove);
    fileButtons->addStretch();
    auto* grid = new QGridLayout(this);
    grid->addWidget(files, 0, 0, 1, 3);
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
    showWindowTexts(*this, {TextSection::SoundConverter});
    nameControls(*this);
}

void SoundConvWindow::addFiles(const QStringList& files) {
    m_files->addItems(files);
    updateButtons();
}

void SoundConvWindow::chooseFiles() {
    addFiles(QFileDialog::getOpenFileNames(
        this, text("#addTitle"), {},
        text("#soundFiles")
                .arg(QStringLiteral("*.wav *.flac *.ogg *.oga *.aif *.aiff *.au *.snd "
                                    "*.voc")) +
            QStringLiteral(";;") + text("#allFiles").arg(QStringLiteral("*"))));
}

void SoundConvWindow::chooseFolder() {
    const QString folder =
        QFileDialog::getExistingDirectory(this, text("#folderTitle"), m_folder->text());
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
        m_log->appendPlainText(
            text(result.ok ? "#written" : "#failed")
                .arg(QString::fromStdString(result.ok ? result.output : result.error)));
        failed += result.ok ? 0 : 1;
        m_progress->setValue(i + 1);
        // Several long files take a while: keep the bar and the log moving.
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    m_log->appendPlainText(text("#converted").arg(count - failed).arg(count));
    updateButtons();
    return failed;
}

} // namespace orvelin
