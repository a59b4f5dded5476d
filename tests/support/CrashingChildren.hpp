#pragma once

#include <QByteArray>
#include <QtGlobal>

/// While it lives, child processes that crash end as they do without a sanitizer, which would report the crash and
/// exit.
class CrashingChildren {
public:
    CrashingChildren() : before_(qgetenv("ASAN_OPTIONS")) {
        qputenv("ASAN_OPTIONS", before_ + ":handle_segv=0:handle_abort=0");
    }
    ~CrashingChildren() { qputenv("ASAN_OPTIONS", before_); }
    CrashingChildren(CrashingChildren const&) = delete;
    CrashingChildren& operator=(CrashingChildren const&) = delete;

private:
    QByteArray const before_;
};
