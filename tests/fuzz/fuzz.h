#pragma once

#include <QByteArray>

/// Readers of what comes from outside, each with whatever bytes libFuzzer has made up.
///
/// A reader has done well if it comes back: the sanitizers watch its memory, libFuzzer its time.
/// What its header promises of any input is held against what came out, too.
namespace Fuzz {

/// Ends the program as a finding, with the promise in its message, unless that has been kept.
void mustHold(bool kept, const char *promise);

void ppd(const QByteArray &input);
void settings(const QByteArray &input);
void profile(const QByteArray &input);
void policy(const QByteArray &input);
void pageList(const QByteArray &input);
void watermark(const QByteArray &input);
void account(const QByteArray &input);
void secret(const QByteArray &input);

} // namespace Fuzz
