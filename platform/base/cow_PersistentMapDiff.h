#pragma once
// What differs between two versions of a persistent map, found by walking both trees together and
// skipping every subtree they share: after k changes to a copy the walk costs about O(k log N),
// not O(N). A save in place compares a repository with the state its file holds this way.
#include <utility>
#include <vector>

#include "platform/base/cow_PersistentMap.h"

template <class Map>
struct cow_PersistentMapDiff {
  using Node = typename Map::Node;
  using K = typename Map::key_type;
  using V = typename Map::mapped_type;

  // An in-order walk that hands out whole subtrees until asked to open them: a stack of
  // subtrees still closed and of nodes whose left side is done.
  class Cursor {
   public:
    void Push(const Node* n) {
      if (n) items_.push_back({n, false});
    }
    bool Empty() const noexcept { return items_.empty(); }
    const Node* Top() const noexcept { return items_.back().first; }
    bool TopSingle() const noexcept { return items_.back().second; }
    const Node* Pop() noexcept {
      const Node* n = items_.back().first;
      items_.pop_back();
      return n;
    }
    // Opens the subtree on top: its right side, the node itself, then its left side on top.
    void Expand() {
      const Node* n = Pop();
      Push(n->right);
      items_.push_back({n, true});
      Push(n->left);
    }

   private:
    std::vector<std::pair<const Node*, bool>> items_;
  };

  template <class F>
  static void Run(const Map& older, const Map& now, F&& f) {
    const auto& less = now.less_;
    const V* none = nullptr;
    Cursor a, b;
    a.Push(older.root_);
    b.Push(now.root_);
    while (!a.Empty() || !b.Empty()) {
      if (a.Empty() || b.Empty()) {
        const bool added = a.Empty();  // what is left is only the newer map's, or only the older one's
        Cursor& rest = added ? b : a;
        if (!rest.TopSingle()) {
          rest.Expand();
          continue;
        }
        const Node* n = rest.Pop();
        if (added) f(n->kv.first, none, &n->kv.second);
        else f(n->kv.first, &n->kv.second, none);
        continue;
      }
      const Node* x = a.Top();
      const Node* y = b.Top();
      const bool xs = a.TopSingle(), ys = b.TopSingle();
      if (!xs && !ys) {
        if (x == y) {  // the same subtree on both sides: nothing in it differs
          a.Pop();
          b.Pop();
        } else if (Map::H(x) >= Map::H(y)) {
          a.Expand();
        } else {
          b.Expand();
        }
        continue;
      }
      if (xs != ys) {
        // A single key against a subtree: the key goes first when it is below all of the
        // subtree, which its leftmost node tells without opening it.
        const Node* single = xs ? x : y;
        const Node* tree = xs ? y : x;
        const Node* first = tree;
        while (first->left) first = first->left;
        if (less(single->kv.first, first->kv.first)) {
          if (xs) f(single->kv.first, &single->kv.second, none);
          else f(single->kv.first, none, &single->kv.second);
          (xs ? a : b).Pop();
        } else {
          (xs ? b : a).Expand();
        }
        continue;
      }
      if (less(x->kv.first, y->kv.first)) {
        f(x->kv.first, &x->kv.second, none);
        a.Pop();
      } else if (less(y->kv.first, x->kv.first)) {
        f(y->kv.first, none, &y->kv.second);
        b.Pop();
      } else {
        if (x != y) f(y->kv.first, &x->kv.second, &y->kv.second);
        a.Pop();
        b.Pop();
      }
    }
  }
};

// Calls f(key, old, now) for each key, in order, whose element differs between `older` and `now`
// (two versions of one map, usually a copy and its original): old is null for an added key, now
// null for a removed one, and both are given when the key holds another node's value (the caller
// decides what counts as the same value: a copied node may hold the same element).
template <class K, class V, class Less, class F>
void cow_DiffFrom(const cow_PersistentMap<K, V, Less>& older, const cow_PersistentMap<K, V, Less>& now, F&& f) {
  cow_PersistentMapDiff<cow_PersistentMap<K, V, Less>>::Run(older, now, f);
}
