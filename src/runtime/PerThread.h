// One object for each thread that asks for it, gone with the thread. Not thread_local, because with some compilers for
// Windows such an object is taken down after its memory.
#pragma once

#include <pthread.h>

#include <memory>
#include <new>

namespace Tarnwise {

template <class T>
class PerThread {
 public:
  PerThread() {
    if (pthread_key_create(&key_, Delete) != 0) throw std::bad_alloc();
  }
  PerThread(const PerThread&) = delete;
  PerThread& operator=(const PerThread&) = delete;
  ~PerThread() {
    Delete(pthread_getspecific(key_));
    pthread_key_delete(key_);
  }

  T& Get() {
    if (void* const there = pthread_getspecific(key_)) return *static_cast<T*>(there);
    auto made = std::make_unique<T>();
    if (pthread_setspecific(key_, made.get()) != 0) throw std::bad_alloc();
    return *made.release();
  }

 private:
  static void Delete(void* object) { delete static_cast<T*>(object); }

  pthread_key_t key_{};
};

}  // namespace Tarnwise
