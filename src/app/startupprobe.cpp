#include "startupprobe.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>
#include <cstdio>
#include <cstdlib>

namespace orvelin {

namespace {

bool environmentSwitchOn(const char* name) {
    return qEnvironmentVariable(name) == QLatin1String("1");
}

// A window that never appears (no display, a window manager that hangs) must not
// leave a timed or tested run hanging.
constexpr int kExposeTimeoutMs = 30000;

} // namespace

StartupProbe::StartupProbe(QObject* parent) : QObject(parent) {}

bool StartupProbe::quitAfterStartupRequested() {
    return environmentSwitchOn("ORVELIN_QUIT_AFTER_STARTUP");
}

bool StartupProbe::reportWindowsRequested() {
    return environmentSwitchOn("ORVELIN_REPORT_WINDOWS");
}

void StartupProbe::watch(QWidget* window) {
    Watched entry;
    entry.widget = window;
    // The native window exists once the widget is shown; until then the widget's
    // own show event tells when to look for it.
    window->installEventFilter(this);
    QWindow* handle = window->windowHandle();
    entry.surface = handle != nullptr ? static_cast<QObject*>(handle) : window;
    if (handle != nullptr)
        handle->installEventFilter(this);
    entry.exposed = handle != nullptr && handle->isExposed();
    m_windows.push_back(entry);
    if (entry.exposed)
        m_exposed << window->objectName();
}

void StartupProbe::start() {
    m_started = true;
    checkAllExposed();
}

bool StartupProbe::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::Expose && type != QEvent::Show && type != QEvent::WinIdChange)
        return QObject::eventFilter(watched, event);
    for (Watched& entry : m_windows) {
        if (entry.widget == nullptr || entry.exposed)
            continue;
        QWindow* handle = entry.widget->windowHandle();
        if (handle != nullptr && entry.surface != handle) {
            // The widget got its native window: follow the expose events there.
            entry.surface = handle;
            handle->installEventFilter(this);
        }
        if (handle != nullptr && handle->isExposed()) {
            entry.exposed = true;
            m_exposed << entry.widget->objectName();
            if (m_report)
                std::fprintf(stderr, "orvelin: window shown: %s \"%s\"\n",
                             qPrintable(entry.widget->objectName()),
                             qPrintable(shownTitle(*entry.widget)));
        }
    }
    if (m_started)
        checkAllExposed();
    return QObject::eventFilter(watched, event);
}

QString StartupProbe::shownTitle(const QWidget& window) {
    // The title bar shows Qt's "[*]" as "*" while the window is modified, else nothing.
    QString title = window.windowTitle();
    return title.replace(QStringLiteral("[*]"),
                         window.isWindowModified() ? QStringLiteral("*") : QString());
}

void StartupProbe::checkAllExposed() {
    if (m_idleSent)
        return;
    for (const Watched& entry : m_windows)
        if (entry.widget != nullptr && !entry.exposed)
            return;
    m_idleSent = true;
    // A zero timer runs after everything already queued: the first paint of every
    // window and the events start-up posted.
    QTimer::singleShot(0, this, [this] { emit idle(); });
}

void StartupProbe::applyEnvironment() {
    m_report = reportWindowsRequested();
    if (m_report) {
        for (const Watched& entry : m_windows)
            if (entry.exposed && entry.widget != nullptr)
                std::fprintf(stderr, "orvelin: window shown: %s \"%s\"\n",
                             qPrintable(entry.widget->objectName()),
                             qPrintable(shownTitle(*entry.widget)));
        connect(this, &StartupProbe::idle, this, [] { std::fprintf(stderr, "orvelin: idle\n"); });
    }
    if (quitAfterStartupRequested()) {
        connect(this, &StartupProbe::idle, qApp, [] { QCoreApplication::exit(0); });
        QTimer::singleShot(kExposeTimeoutMs, this, [this] {
            if (m_idleSent)
                return;
            // Start-up may be stuck in a modal dialog's own event loop, which an
            // orderly exit would not leave: end the process outright.
            std::fprintf(stderr, "orvelin: the windows did not become idle within %d ms\n",
                         kExposeTimeoutMs);
            std::fflush(stderr);
            std::_Exit(3);
        });
    }
}

} // namespace orvelin
