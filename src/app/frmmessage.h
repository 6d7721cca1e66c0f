#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace orvelin {

/**
 * The modeless progress window `frmMessage` shown while a project loads or saves:
 * a title, one line of text and a progress bar. While it is up the application
 * shows the busy pointer.
 *
 * Loading and saving run to their end inside one event, so the window paints
 * itself synchronously instead of waiting for the event loop.
 */
class FrmMessage : public QWidget {
    Q_OBJECT

public:
    explicit FrmMessage(QWidget* parent = nullptr);
    ~FrmMessage() override;

    /// Shows (or updates) the window; `percent` below 0 hides the progress bar.
    void showProgress(const QString& title, const QString& text, int percent);
    /// Hides the window and gives the normal pointer back.
    void hideProgress();

    QString text() const;
    int percent() const;
    bool busyPointer() const { return m_busy; }

private:
    QLabel* m_text;
    QProgressBar* m_bar;
    bool m_busy = false;
};

} // namespace orvelin
