#pragma once

#include "engine/core/report.h"
#include "engine/datastructures/scratchelement.h"

namespace Vorn {

// A doubly linked list whose nodes know their list. Steps and accesses from no node, and insertions before a node of
// another list, fire their checks and change nothing.
template <class T>
class List {
    struct Node {
        T value{};
        Node* previous = nullptr;
        Node* next = nullptr;
        List* m_pOwnerList = nullptr;
    };

public:
    class Iterator {
    public:
        Iterator() = default;

        const Node* GetInternalNodePtr() const { return m_pNode; }

        T& operator*() const { return IsAtNode() ? m_pNode->value : ScratchElement<T>(); }

        Iterator& operator++() {
            m_pNode = IsAtNode() ? m_pNode->next : nullptr;
            return *this;
        }
        Iterator& operator--() {
            m_pNode = IsAtNode() ? m_pNode->previous : nullptr;
            return *this;
        }

        friend bool operator==(Iterator left, Iterator right) { return left.m_pNode == right.m_pNode; }

    private:
        friend class List;

        explicit Iterator(Node* node) : m_pNode(node) {}

        bool IsAtNode() const {
            CheckAssert(m_pNode != nullptr, "m_pNode != NULL");
            return m_pNode != nullptr;
        }

        Node* m_pNode = nullptr;
    };

    List() = default;
    List(const List&) = delete;
    List& operator=(const List&) = delete;
    ~List() { Clear(); }

    int Size() const { return size; }

    Iterator begin() { return Iterator(first); }
    Iterator end() { return Iterator(); }

    // Inserts a copy of `value` after the last element.
    void Append(const T& value) { Link(last, nullptr, value); }

    // Inserts a copy of `value` before the element at `where`.
    void Insert(Iterator where, const T& value) {
        if (Owns(where)) {
            Link(where.m_pNode->previous, where.m_pNode, value);
        }
    }

    void Remove(Iterator where) {
        if (Owns(where)) {
            Node* node = where.m_pNode;
            LinkFrom(node->previous) = node->next;
            LinkTo(node->next) = node->previous;
            delete node;
            --size;
        }
    }

    void Clear() {
        while (first != nullptr) {
            Remove(begin());
        }
    }

private:
    bool Owns(Iterator where) {
        const bool owns = where.GetInternalNodePtr() != nullptr && where.GetInternalNodePtr()->m_pOwnerList == this;
        CheckAssert(owns, "where.GetInternalNodePtr()->m_pOwnerList == this");
        return owns;
    }

    Node*& LinkFrom(Node* previous) { return previous != nullptr ? previous->next : first; }
    Node*& LinkTo(Node* next) { return next != nullptr ? next->previous : last; }

    void Link(Node* previous, Node* next, const T& value) {
        Node* node = new Node{value, previous, next, this};
        LinkFrom(previous) = node;
        LinkTo(next) = node;
        ++size;
    }

    Node* first = nullptr;
    Node* last = nullptr;
    int size = 0;
};

} // namespace Vorn
