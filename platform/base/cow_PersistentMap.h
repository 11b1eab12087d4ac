#pragma once
// An ordered map whose copies share structure: an AVL tree of reference-counted nodes. A copy
// shares the root (O(1)); a change copies only the shared nodes on the path it touches and changes
// in place the nodes this map alone owns, so a map that is not shared costs what a plain tree costs.
// A node's count (parents or maps holding it) proves this map alone owns it only once every node
// above it is owned too, so changes separate the path from the root downwards.
// Strong guarantee: a change first separates every node it will touch (invisible to readers, the
// private copy holds the same contents), then relinks, which cannot throw. Assigning over a value
// relies on V's move assignment not throwing. Any change of a map invalidates its iterators.
#include <atomic>
#include <cassert>
#include <cstddef>
#include <functional>
#include <iterator>
#include <type_traits>
#include <utility>

#include "platform/base/bas_Alloc.h"

template <class Map>
struct cow_PersistentMapDiff;

template <class K, class V, class Less = std::less<K>>
class cow_PersistentMap {
  struct Node;
  // The walk that compares two versions reads the nodes (cow_PersistentMapDiff.h).
  friend struct cow_PersistentMapDiff<cow_PersistentMap>;
  // An AVL tree needs more than 2^44 nodes to reach height 64; a 48-bit address space holds fewer.
  static constexpr int kMaxDepth = 64;

 public:
  using key_type = K;
  using mapped_type = V;
  using value_type = std::pair<const K, V>;

  class const_iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = cow_PersistentMap::value_type;
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;
    using reference = const value_type&;

    // User-provided so that end() does not zero the whole stack.
    const_iterator() noexcept {}
    // Copies only the live part of the stack: it is short and the rest is uninitialized.
    const_iterator(const const_iterator& o) noexcept : depth_(o.depth_) {
      for (int i = 0; i < depth_; ++i) stack_[i] = o.stack_[i];
    }
    const_iterator& operator=(const const_iterator& o) noexcept {
      depth_ = o.depth_;
      for (int i = 0; i < depth_; ++i) stack_[i] = o.stack_[i];
      return *this;
    }
    reference operator*() const noexcept { return stack_[depth_ - 1]->kv; }
    pointer operator->() const noexcept { return &stack_[depth_ - 1]->kv; }
    const_iterator& operator++() noexcept {
      Descend(stack_[--depth_]->right);
      return *this;
    }
    const_iterator operator++(int) noexcept {
      const_iterator old(*this);
      ++*this;
      return old;
    }
    friend bool operator==(const const_iterator& a, const const_iterator& b) noexcept {
      return a.depth_ == b.depth_ && (a.depth_ == 0 || a.stack_[a.depth_ - 1] == b.stack_[b.depth_ - 1]);
    }
    friend bool operator!=(const const_iterator& a, const const_iterator& b) noexcept { return !(a == b); }

   private:
    friend class cow_PersistentMap;
    // The stack holds the current node and the ancestors whose left subtree is being visited.
    void Descend(const Node* n) noexcept {
      for (; n; n = n->left) stack_[depth_++] = n;
    }
    const Node* stack_[kMaxDepth];
    int depth_ = 0;
  };
  using iterator = const_iterator;

  // Builds a perfectly balanced map in O(N) from keys appended in strictly increasing order, which
  // is how a map is loaded from a file; a refused key lets the loader report the duplicate itself.
  class Builder {
   public:
    Builder() = default;
    explicit Builder(Less less) : less_(std::move(less)) {}
    Builder(const Builder&) = delete;
    Builder& operator=(const Builder&) = delete;
    ~Builder() { Free(); }

    // False, and nothing appended, when key is not greater than the last key appended.
    bool Append(K key, V value) {
      if (tail_ && !less_(tail_->kv.first, key)) return false;
      AppendGreater(std::move(key), std::move(value));
      return true;
    }
    // Append for a caller that has already compared: key must be greater than the last key.
    void AppendGreater(K key, V value) {
      assert(!tail_ || less_(tail_->kv.first, key));
      Node* n = mem_New<Node>(std::move(key), std::move(value));
      (tail_ ? tail_->right : head_) = n;  // the pending nodes form a list through right
      tail_ = n;
      ++count_;
    }
    const K* Last() const noexcept { return tail_ ? &tail_->kv.first : nullptr; }
    std::size_t Count() const noexcept { return count_; }

    cow_PersistentMap Build() && {
      cow_PersistentMap m(less_);
      Node* cursor = head_;
      m.root_ = Make(cursor, count_);
      m.size_ = count_;
      head_ = tail_ = nullptr;
      count_ = 0;
      return m;
    }

   private:
    // In-order construction: the left half consumes the list first, so each node is visited once.
    static Node* Make(Node*& cursor, std::size_t n) noexcept {
      if (n == 0) return nullptr;
      Node* left = Make(cursor, n / 2);
      Node* root = cursor;
      cursor = cursor->right;
      root->left = left;
      root->right = Make(cursor, n - n / 2 - 1);
      Fix(root);
      return root;
    }
    void Free() noexcept {
      while (head_) mem_Delete(std::exchange(head_, head_->right));
    }
    [[no_unique_address]] Less less_{};
    Node* head_ = nullptr;
    Node* tail_ = nullptr;
    std::size_t count_ = 0;
  };

  cow_PersistentMap() = default;
  explicit cow_PersistentMap(Less less) : less_(std::move(less)) {}
  cow_PersistentMap(const cow_PersistentMap& o) noexcept(std::is_nothrow_copy_constructible_v<Less>)
      : less_(o.less_), root_(o.root_), size_(o.size_) {
    Retain(root_);
  }
  cow_PersistentMap(cow_PersistentMap&& o) noexcept(std::is_nothrow_copy_constructible_v<Less>)
      : less_(o.less_), root_(std::exchange(o.root_, nullptr)), size_(std::exchange(o.size_, 0)) {}
  cow_PersistentMap& operator=(const cow_PersistentMap& o) noexcept(std::is_nothrow_copy_constructible_v<Less>) {
    cow_PersistentMap tmp(o);
    Swap(tmp);
    return *this;
  }
  // Leaves o empty, so that the old contents of this map are released now rather than with o.
  cow_PersistentMap& operator=(cow_PersistentMap&& o) noexcept(std::is_nothrow_copy_assignable_v<Less>) {
    if (this != &o) {
      less_ = o.less_;
      Release(std::exchange(root_, std::exchange(o.root_, nullptr)));
      size_ = std::exchange(o.size_, 0);
    }
    return *this;
  }
  ~cow_PersistentMap() { Release(root_); }

  std::size_t size() const noexcept { return size_; }
  bool empty() const noexcept { return size_ == 0; }
  void clear() noexcept {
    Release(std::exchange(root_, nullptr));
    size_ = 0;
  }

  const_iterator begin() const noexcept {
    const_iterator it;
    it.Descend(root_);
    return it;
  }
  const_iterator end() const noexcept { return const_iterator(); }

  const_iterator find(const K& key) const {
    const_iterator it;
    for (const Node* n = root_; n;) {
      if (less_(key, n->kv.first)) {
        it.stack_[it.depth_++] = n;
        n = n->left;
      } else if (less_(n->kv.first, key)) {
        n = n->right;
      } else {
        it.stack_[it.depth_++] = n;
        return it;
      }
    }
    return end();
  }
  std::size_t count(const K& key) const { return Lookup(key) ? 1 : 0; }
  const V* Find(const K& key) const noexcept(kNothrowLess) {
    const Node* n = Lookup(key);
    return n ? &n->kv.second : nullptr;
  }

  // Separates the path to key from any copy; the pointer is valid until the next change of this map.
  V* Modify(const K& key) {
    if (!Lookup(key)) return nullptr;  // an absent key must not cost a separation
    for (Node** slot = &root_;;) {
      Node* n = Own(*slot);
      if (less_(key, n->kv.first)) slot = &n->left;
      else if (less_(n->kv.first, key)) slot = &n->right;
      else return &n->kv.second;
    }
  }

  std::pair<const_iterator, bool> insert_or_assign(const K& key, V value) { return Put(key, value); }
  std::pair<const_iterator, bool> insert_or_assign(K&& key, V value) { return Put(std::move(key), value); }

  std::size_t erase(const K& key) {
    if (!Lookup(key)) return 0;
    Path p;
    Node* n = Own(root_);
    for (;;) {
      const bool goLeft = less_(key, n->kv.first);
      if (!goLeft && !less_(n->kv.first, key)) break;
      p.Push(n, goLeft);
      n = Own(goLeft ? n->left : n->right);
    }
    Node* const target = n;
    const int targetLevel = p.depth;
    if (n->left && n->right) {  // the successor leaves its place and takes the target's
      p.Push(n, false);
      for (n = Own(n->right); n->left; n = Own(n->left)) p.Push(n, true);
    }
    Node* const child = n->left ? n->left : n->right;
    OwnRotated(p, H(child));
    // Nothing below throws.
    p.Slot(root_, p.depth) = child;
    if (n != target) {
      n->left = target->left;
      n->right = target->right;  // its height is set by the retrace
      p.node[targetLevel] = n;
      p.Slot(root_, targetLevel) = n;
    }
    target->left = target->right = nullptr;
    Release(target);
    --size_;
    Retrace(p);
    return 1;
  }

  friend bool operator==(const cow_PersistentMap& a, const cow_PersistentMap& b) {
    if (a.root_ == b.root_) return true;
    if (a.size_ != b.size_) return false;
    for (auto i = a.begin(), j = b.begin(); i != a.end(); ++i, ++j) {
      if (a.less_(i->first, j->first) || a.less_(j->first, i->first) || !(i->second == j->second)) return false;
    }
    return true;
  }

  bool SharesRootWith(const cow_PersistentMap& o) const noexcept { return root_ && root_ == o.root_; }
  int Height() const noexcept { return H(root_); }
  // Debug check: stored heights, AVL balance, strict key order and size agree.
  bool Balanced() const {
    const K* prev = nullptr;
    std::size_t n = 0;
    return Check(root_, prev, n) >= 0 && n == size_;
  }

 private:
  static constexpr bool kNothrowLess = std::is_nothrow_invocable_v<const Less&, const K&, const K&>;

  struct Node {
    template <class KK, class VV>
    Node(KK&& k, VV&& v) : kv(std::forward<KK>(k), std::forward<VV>(v)) {}
    explicit Node(const Node& o) : height(o.height), left(o.left), right(o.right), kv(o.kv) {}
    std::atomic<int> refs{1};
    int height = 1;
    Node* left = nullptr;
    Node* right = nullptr;
    value_type kv;
  };

  // The nodes from the root down to a change and the side taken at each.
  struct Path {
    void Push(Node* n, bool goLeft) noexcept {
      node[depth] = n;
      left[depth++] = goLeft;
    }
    // The link that holds the node of the given level.
    Node*& Slot(Node*& root, int level) noexcept {
      return level == 0 ? root : left[level - 1] ? node[level - 1]->left : node[level - 1]->right;
    }
    Node* node[kMaxDepth];
    bool left[kMaxDepth];
    int depth = 0;
  };

  static int H(const Node* n) noexcept { return n ? n->height : 0; }
  static void Fix(Node* n) noexcept {
    const int l = H(n->left), r = H(n->right);
    n->height = (l > r ? l : r) + 1;
  }
  static void Retain(Node* n) noexcept {
    if (n) n->refs.fetch_add(1, std::memory_order_relaxed);
  }
  static void Release(Node* n) noexcept {
    while (n && n->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) {
      Release(n->left);  // recursion depth is the height; the right spine is a loop
      Node* right = n->right;
      mem_Delete(n);
      n = right;
    }
  }
  // Makes the node in slot private to this map; its parent must already be.
  static Node* Own(Node*& slot) {
    Node* n = slot;
    if (n->refs.load(std::memory_order_acquire) != 1) {
      Node* c = mem_New<Node>(*n);
      Retain(c->left);
      Retain(c->right);
      Release(n);
      slot = n = c;
    }
    return n;
  }

  static Node* RotateRight(Node* n) noexcept {
    Node* l = n->left;
    n->left = l->right;
    l->right = n;
    Fix(n);
    Fix(l);
    return l;
  }
  static Node* RotateLeft(Node* n) noexcept {
    Node* r = n->right;
    n->right = r->left;
    r->left = n;
    Fix(n);
    Fix(r);
    return r;
  }
  // Every node a rotation here changes must be private (see OwnRotated).
  static Node* Rebalance(Node* n) noexcept {
    const int b = H(n->left) - H(n->right);
    if (b > 1) {
      if (H(n->left->right) > H(n->left->left)) n->left = RotateLeft(n->left);
      return RotateRight(n);
    }
    if (b < -1) {
      if (H(n->right->left) > H(n->right->right)) n->right = RotateRight(n->right);
      return RotateLeft(n);
    }
    Fix(n);
    return n;
  }
  void Retrace(Path& p) noexcept {
    for (int i = p.depth - 1; i >= 0; --i) p.Slot(root_, i) = Rebalance(p.node[i]);
  }

  // Erasing may rotate at nodes beside the path. This dry run of the retrace, with the removed
  // subtree's new height h, separates exactly those nodes before anything is relinked.
  static void OwnRotated(Path& p, int h) {
    for (int i = p.depth - 1; i >= 0; --i) {
      Node* n = p.node[i];
      Node*& sibling = p.left[i] ? n->right : n->left;
      const int hs = H(sibling);
      int nh = (h > hs ? h : hs) + 1;
      if (hs - h == 2) {
        Node* s = Own(sibling);
        Node*& inner = p.left[i] ? s->left : s->right;
        const int hi = H(inner), ho = H(p.left[i] ? s->right : s->left);
        if (hi > ho) Own(inner);
        nh = hi == ho ? hs + 1 : hs;
      }
      if (nh == n->height) return;  // nothing above changes
      h = nh;
    }
  }

  // Inserting rotates only nodes on the path, which are already private when the node is linked.
  template <class KK>
  std::pair<const_iterator, bool> Put(KK&& key, V& value) {
    Path p;
    Node** slot = &root_;
    while (*slot) {
      Node* n = Own(*slot);
      const bool goLeft = less_(key, n->kv.first);
      if (!goLeft && !less_(n->kv.first, key)) {
        n->kv.second = std::move(value);
        return {find(n->kv.first), false};
      }
      p.Push(n, goLeft);
      slot = goLeft ? &n->left : &n->right;
    }
    Node* added = mem_New<Node>(std::forward<KK>(key), std::move(value));
    *slot = added;
    ++size_;
    Retrace(p);
    return {find(added->kv.first), true};
  }

  const Node* Lookup(const K& key) const noexcept(kNothrowLess) {
    const Node* n = root_;
    while (n) {
      if (less_(key, n->kv.first)) n = n->left;
      else if (less_(n->kv.first, key)) n = n->right;
      else return n;
    }
    return nullptr;
  }

  int Check(const Node* n, const K*& prev, std::size_t& count) const {
    if (!n) return 0;
    const int l = Check(n->left, prev, count);
    if (l < 0 || (prev && !less_(*prev, n->kv.first))) return -1;
    prev = &n->kv.first;
    ++count;
    const int r = Check(n->right, prev, count);
    if (r < 0 || l - r > 1 || r - l > 1 || n->height != (l > r ? l : r) + 1) return -1;
    return n->height;
  }

  void Swap(cow_PersistentMap& o) noexcept(std::is_nothrow_swappable_v<Less>) {
    using std::swap;
    swap(less_, o.less_);
    swap(root_, o.root_);
    swap(size_, o.size_);
  }

  [[no_unique_address]] Less less_{};
  Node* root_ = nullptr;
  std::size_t size_ = 0;
};
