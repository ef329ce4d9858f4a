// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ApplicationObject.h"
#include "Platform/SystemAppearance.h"
#include "PortalSettings.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QLatin1String>
#include <QMap>
#include <QSocketNotifier>
#include <QVariantMap>

#include <array>
#include <csignal>
#include <cstdlib>
#include <type_traits>

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace Platform {

namespace {

using Groups = QMap<QString, QVariantMap>;

constexpr QLatin1String appearance("org.freedesktop.appearance");
// Portals that are older than the common key "reduced-motion" offer the keys of their desktop.
constexpr QLatin1String gnome("org.gnome.desktop.interface");
constexpr QLatin1String plasma("org.kde.kdeglobals.KDE");

/// The settings that the portal has reported.
struct Settings
{
    std::optional<uint> colorScheme;
    std::optional<uint> reducedMotion;
    std::optional<bool> hasAnimations;
    std::optional<double> durationFactor;

    void set(const QString& group, const QString& key, const QVariant& value)
    {
        if (group == appearance && key == QLatin1String("color-scheme"))
            colorScheme = value.toUInt();
        else if (group == appearance && key == QLatin1String("reduced-motion"))
            reducedMotion = value.toUInt();
        else if (group == gnome && key == QLatin1String("enable-animations"))
            hasAnimations = value.toBool();
        else if (group == plasma && key == QLatin1String("AnimationDurationFactor"))
            durationFactor = value.toDouble();
    }

    /// Takes the settings that are missing here.
    void complete(const Settings& older)
    {
        colorScheme = colorScheme ? colorScheme : older.colorScheme;
        reducedMotion = reducedMotion ? reducedMotion : older.reducedMotion;
        hasAnimations = hasAnimations ? hasAnimations : older.hasAnimations;
        durationFactor = durationFactor ? durationFactor : older.durationFactor;
    }

    [[nodiscard]] std::optional<bool> darkPreference() const
    {
        return colorScheme == 1U || colorScheme == 2U ? std::optional(colorScheme == 1U)
                                                      : std::nullopt;
    }

    [[nodiscard]] bool prefersReducedMotion() const
    {
        return reducedMotion == 1U || hasAnimations == false || durationFactor == 0.0;
    }
};
static_assert(std::is_trivially_copyable_v<Settings>, "the reader sends the settings as bytes");

/// The pipe from the process that reads the settings; negative without this process.
int readerPipe = -1; // NOLINT(*-avoid-non-const-global-variables): set before the only object

std::unique_ptr<PortalSettings> connectToPortal()
{
    return std::make_unique<PortalSettings>(QStringLiteral("org.freedesktop.portal.Desktop"),
                                            QStringLiteral("/org/freedesktop/portal/desktop"),
                                            QDBusConnection::sessionBus(), nullptr);
}

/// Asks the portal for the settings; the settings are empty if the portal does not answer.
Settings askPortal()
{
    int argumentCount = 0;
    const QCoreApplication application(argumentCount, nullptr);
    qDBusRegisterMetaType<Groups>();
    const auto portal = connectToPortal();
    constexpr int timeout = 5000;
    portal->setTimeout(timeout);
    QDBusPendingReply<Groups> reply = portal->ReadAll({appearance, gnome, plasma});
    reply.waitForFinished();
    Settings settings;
    const Groups groups = reply.isError() ? Groups() : reply.value();
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        for (auto value = group->begin(); value != group->end(); ++value)
            settings.set(group.key(), value.key(), *value);
    }
    return settings;
}

/// The process that asks the portal, because the portal inspects the process of a caller and
/// refuses a process whose memory is hidden.
[[noreturn]] void runReader(int pipe, void (*restrict)())
{
    // NOLINTBEGIN(cppcoreguidelines-pro-type-vararg): prctl is variadic
    ::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0);
    // NOLINTEND(cppcoreguidelines-pro-type-vararg)
    restrict();
    const Settings settings = askPortal();
    const bool isSent = ::write(pipe, &settings, sizeof(settings)) == sizeof(settings);
    ::_exit(isSent ? EXIT_SUCCESS : EXIT_FAILURE);
}

/// The settings of the desktop portal, which another process reads once, and whose changes this
/// process receives. Without a session bus or a portal, the settings keep their defaults.
class PortalAppearance final : public SystemAppearance
{
public:
    explicit PortalAppearance(QObject* parent)
        : SystemAppearance(parent)
        , m_reader(QSocketNotifier::Read)
        , m_portal(connectToPortal())
    {
        // QtDBus drops a signal if a parameter's type is not registered by name, and Qt 6.4 does
        // not register QDBusVariant.
        qRegisterMetaType<QDBusVariant>();
        connect(m_portal.get(), &PortalSettings::SettingChanged, this,
                &PortalAppearance::takeChange);
        if (readerPipe < 0)
            return;
        m_reader.setSocket(readerPipe);
        m_reader.setEnabled(true);
        connect(&m_reader, &QSocketNotifier::activated, this, &PortalAppearance::takeSettings);
    }

private:
    void takeChange(const QString& group, const QString& key, const QDBusVariant& value)
    {
        m_settings.set(group, key, value.variant());
        update(m_settings.darkPreference(), m_settings.prefersReducedMotion());
    }

    void takeSettings()
    {
        Settings settings;
        if (::read(readerPipe, &settings, sizeof(settings)) == sizeof(settings)) {
            // A change that has arrived already is newer.
            m_settings.complete(settings);
            update(m_settings.darkPreference(), m_settings.prefersReducedMotion());
        }
        m_reader.setEnabled(false);
        ::close(readerPipe);
    }

    QSocketNotifier m_reader;
    std::unique_ptr<PortalSettings> m_portal;
    Settings m_settings;
};

} // namespace

void SystemAppearance::startReading(void (*restrictReader)())
{
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        return;
    readerPipe = pipe[0];
    ::signal(SIGCHLD, SIG_IGN); // The kernel forgets the process when it ends.
    if (::fork() == 0)
        runReader(pipe[1], restrictReader);
    ::close(pipe[1]);
}

SystemAppearance& SystemAppearance::instance()
{
    return applicationObject<PortalAppearance>();
}

} // namespace Platform
