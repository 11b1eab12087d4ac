#pragma once
// The root of a class's family: the class a RootClass declaration names, or the class itself.
// Light enough for class headers.

template <class T>
struct cls_RootOf {
  using type = T;
};
template <class T>
  requires requires { typename T::RootClass; }
struct cls_RootOf<T> {
  using type = typename T::RootClass;
};
template <class T>
using cls_Root = typename cls_RootOf<T>::type;
