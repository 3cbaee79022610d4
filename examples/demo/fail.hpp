#pragma once
// The one way out on bad input and on failed calls: a line on standard error, exit status 1.

namespace demo {

[[noreturn]] __attribute__((format(printf, 1, 2))) void fail(const char* pattern, ...);

// Fails unless `status`, the result of a library call, is 0; `what` names the call's purpose.
void require(int status, const char* what);

}  // namespace demo
