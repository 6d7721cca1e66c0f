#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace orvelin {

/**
 * The sound converter's window: a list of sound files, where the .au files go
 * (beside each source or into one folder), a progress bar and one line per file
 * that says what became of it.
 */
class SoundConvWindow : public QWidget {
    Q_OBJECT

public:
    explicit SoundConvWindow(QWidget* parent = nullptr);

    void addFiles(const QStringList& files);
    /// Converts every listed file; the number that failed.
    int convertAll();

private:
    void chooseFiles();
    void chooseFolder();
    void updateButtons();

    QListWidget* m_files;
    QRadioButton* m_beside;
    QRadioButton* m_intoFolder;
    QLineEdit* m_folder;
    QPushButton* m_browse;
    QPushButton* m_convert;
    QProgressBar* m_progress;
    QPlainTextEdit* m_log;
};

} // namespace orvelin
