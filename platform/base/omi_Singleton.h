#pragma once
// Process-wide instance of a framework service, created on first use.
template <class T>
class omi_Singleton {
 public:
  static T& Instance() {
    static T instance;
    return instance;
  }
};
