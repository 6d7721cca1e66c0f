#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <vector>

namespace orvelin {

/**
 * Tells when the program's first windows are on screen and the event loop has run
 * dry once: the moment start-up is over for the user. The designer uses it for
 * ORVELIN_QUIT_AFTER_STARTUP (timing and the smoke test) and ORVELIN_REPORT_WINDOWS
 * (each shown window named on stderr); the bare window benchmark uses the same
 * probe, so both programs are timed to the same point.
 */
class StartupProbe : public QObject {
    Q_OBJECT

public:
    /// A window's title as its title bar shows it.
    static QString shownTitle(const QWidget& window);
    explicit StartupProbe(QObject* parent = nullptr);

    /// Waits for `window` (a top-level widget) to be exposed. Call before the event loop.
    void watch(QWidget* window);

    /// Emits idle() once every watched window is exposed and pending events are done.
    void start();

    /// Object names of the watched windows that have been exposed, in that order.
    const QStringList& exposed() const { return m_exposed; }

    /// ORVELIN_QUIT_AFTER_STARTUP=1.
    static bool quitAfterStartupRequested();
    /// ORVELIN_REPORT_WINDOWS=1.
    static bool reportWindowsRequested();

    /**
     * Wires the two environment switches: reports shown windows when asked, and
     * quits the application with exit code 0 once idle when asked. Without the quit
     * switch nothing is timed and the probe only reports.
     */
    void applyEnvironment();

signals:
    void idle();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void checkAllExposed();

    struct Watched {
        QPointer<QWidget> widget;
        QObject* surface = nullptr; ///< the native window the expose events go to
        bool exposed = false;
    };
    std::vector<Watched> m_windows;
    QStringList m_exposed;
    bool m_started = false;
    bool m_idleSent = false;
    bool m_report = false;
};

} // namespace orvelin
