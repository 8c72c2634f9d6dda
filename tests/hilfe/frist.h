// How long a test waits for what must come: Qt Test's own five seconds are too near on a busy machine. A wait
// ends as soon as its condition holds, so a limit far away costs nothing but where a test fails. Comes ahead
// of every window test, by the precompiled header that they share.
#pragma once

#include <QTest>

inline constexpr int wartefrist = 30000; // milliseconds

// The toolkit has macros for these, since they name the expression and the line that failed.
#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(ausdruck) QTRY_VERIFY_WITH_TIMEOUT(ausdruck, wartefrist)
#define QTRY_VERIFY2(ausdruck, worte) QTRY_VERIFY2_WITH_TIMEOUT(ausdruck, worte, wartefrist)
#define QTRY_COMPARE(ist, soll) QTRY_COMPARE_WITH_TIMEOUT(ist, soll, wartefrist)
