// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "ViewModel/GeneratorViewModel.h"

#include "Model/GeneratorError.h"
#include "Model/UnicodeText.h"
#include "Platform/Clipboard.h"
#include "Platform/ContinuousClock.h"
#include "Services/LineBreaks.h"
#include "Services/SecretText.h"

#include <QJSEngine>
#include <QJSValue>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <utility>

namespace {

namespace Clipboard = Platform::Clipboard;
namespace ContinuousClock = Platform::ContinuousClock;

using namespace std::chrono_literals;

constexpr auto clearClipboardAfter = 30s;
constexpr auto hideConfirmationAfter = 1400ms;

constexpr qint64 startingLength = 10;
constexpr qsizetype historyLimit = 6;
constexpr qsizetype separatorLimit = 3;

} // namespace

GeneratorViewModel::GeneratorViewModel(QObject* parent)
    : QObject(parent)
{
    m_settings.length = startingLength;
    generate();
}

GeneratorViewModel::~GeneratorViewModel()
{
    release(std::exchange(m_generated, {}));
    while (!m_history.isEmpty())
        release(m_history.takeLast());
    wipeReleased();
}

void GeneratorViewModel::setSettings(const GeneratorSettings& settings)
{
    m_settings = settings;
    Q_EMIT settingsChanged();
}

QStringList GeneratorViewModel::modeTitles()
{
    QStringList titles;
    for (const GeneratorMode mode : allGeneratorModes)
        titles << rawValue(mode);
    return titles;
}

void GeneratorViewModel::setModeIndex(int index)
{
    GeneratorSettings settings = m_settings;
    settings.mode = allGeneratorModes.at(static_cast<std::size_t>(index));
    setSettings(settings);
}

void GeneratorViewModel::limitSeparator()
{
    GeneratorSettings settings = m_settings;
    settings.separator = UnicodeText::firstGraphemes(m_settings.separator, separatorLimit);
    if (settings.separator.size() < m_settings.separator.size())
        setSettings(settings);
}

bool GeneratorViewModel::isLong() const
{
    return UnicodeText::graphemeCount(m_generated) > LineBreaks::shortSecretLimit;
}

void GeneratorViewModel::setErrorPresented(bool presented)
{
    if (!presented)
        setErrorMessage(std::nullopt);
}

void GeneratorViewModel::generate()
{
    try {
        const QString secret = m_generator.generate(m_settings);
        setGenerated(secret);
        setErrorMessage(std::nullopt);
        remember(secret);
    } catch (const GeneratorError& error) {
        setErrorMessage(error.errorDescription());
    }
}

void GeneratorViewModel::useFromHistory(const QString& secret)
{
    setGenerated(secret);
}

void GeneratorViewModel::copyToClipboard()
{
    if (m_generated.isEmpty())
        return;
    Clipboard::setSecret(m_generated);
    const std::int64_t revision = Clipboard::changeCount();
    setCopied(true);
    // The task does not use this object, because the clipboard keeps the secret after the window is
    // closed.
    ContinuousClock::after(clearClipboardAfter, [revision] {
        if (Clipboard::changeCount() == revision)
            Clipboard::clear();
    });
    ContinuousClock::after(hideConfirmationAfter, [viewModel = QPointer(this)] {
        if (viewModel)
            viewModel->setCopied(false);
    });
}

// The parameter is a copy, because the argument may be a reference to `m_generated`.
void GeneratorViewModel::setGenerated(QString secret)
{
    release(std::exchange(m_generated, std::move(secret)));
    Q_EMIT generatedChanged();
    m_entropy = m_generator.estimatedEntropy(m_generated, m_settings);
    Q_EMIT entropyChanged();
}

void GeneratorViewModel::setErrorMessage(const std::optional<QString>& message)
{
    m_errorMessage = message;
    Q_EMIT errorMessageChanged();
}

void GeneratorViewModel::setCopied(bool copied)
{
    m_copied = copied;
    Q_EMIT copiedChanged();
}

void GeneratorViewModel::remember(const QString& secret)
{
    if (!m_history.isEmpty() && m_history.constFirst() == secret)
        return;
    m_history.prepend(secret);
    if (m_history.size() > historyLimit)
        release(m_history.takeLast());
    Q_EMIT historyChanged();
}

void GeneratorViewModel::release(const QString& secret)
{
    if (secret.isEmpty())
        return;
    const bool isShared = std::ranges::any_of(m_released, [&secret](const QString& other) {
        return other.constData() == secret.constData();
    });
    if (!isShared)
        m_released.append(secret);
    scheduleWiping();
}

void GeneratorViewModel::scheduleWiping()
{
    if (std::exchange(m_isWipingScheduled, true))
        return;
    const auto wipe = [this] {
        m_isWipingScheduled = false;
        // The strings that the engine has read share the characters until they are collected. In
        // Qt 6.8, QJSEngine::collectGarbage returns before it has collected all garbage.
        if (const QJSEngine* const engine = qjsEngine(this))
            engine->globalObject().property(QStringLiteral("gc")).call();
        wipeReleased();
    };
    QTimer::singleShot(0, this, wipe);
}

void GeneratorViewModel::wipeReleased()
{
    for (QString& secret : m_released)
        SecretText::wipe(secret);
    m_released.removeAll(QString()); // SecretText::wipe empties a text.
}
