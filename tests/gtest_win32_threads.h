// Lets GoogleTest build with MinGW's win32 thread model, which has no std::mutex: GoogleTest takes its
// notification from here (the build defines GTEST_HAS_NOTIFICATION_ and includes this file in front of all others).
// One thread sets the flag once and another spins until it is set; the tests themselves use a single thread.
#pragma once

#ifdef __cplusplus
namespace testing::internal {

class Notification {
public:
    void Notify() { __atomic_store_n(&notified_, true, __ATOMIC_RELEASE); }

    void WaitForNotification() {
        while (!__atomic_load_n(&notified_, __ATOMIC_ACQUIRE)) {
        }
    }

private:
    bool notified_ = false;
};

}  // namespace testing::internal
#endif
