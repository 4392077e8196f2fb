#pragma once

#include <algorithm>
#include <climits>
#include <new>

namespace VUtils {

// Growable array that grows in whole steps so that appending reallocates rarely.
// Elements at and beyond count() hold no defined value.
template <class T, int enlargeStep = 100>
class Table {
public:
    Table() = default;
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;
    ~Table() { freeMem(); }

    int count() const { return numElements; }
    int capacity() const { return maxElements; }
    int step() const { return incStep; }
    void setStep(int newStep) { incStep = newStep; }
    T* data() const { return elements; }
    T& operator[](int index) { return elements[index]; }
    const T& operator[](int index) const { return elements[index]; }

    void append(const T& value) {
        const long long n = static_cast<long long>(std::max(numElements, 0)) + 1;
        growFor(n);
        numElements = static_cast<int>(n);
        elements[n - 1] = value;
    }

    void assign(const T* values, int n) {
        if (n <= 0) {
            numElements = 0;
            return;
        }
        growFor(n);
        // The source may be a view of our own storage.
        if (values != elements) {
            std::copy(values, values + n, elements);
        }
        numElements = n;
    }

    // Capacity exactly `n` when that is more than we hold; the count is the caller's.
    void ensureExactCapacity(int n) {
        if (n > maxElements) {
            reallocate(n);
        }
    }

    void setCount(int n) { numElements = n; }

    void copyFrom(const Table& source) {
        freeMem();
        if (source.numElements > 0) {
            reallocate(source.numElements);
            std::copy(source.elements, source.elements + source.numElements, elements);
            numElements = source.numElements;
        }
    }

    void freeMem() {
        maxElements = 0;
        numElements = 0;
        delete[] elements;
        elements = nullptr;
    }

private:
    void growFor(long long n) {
        if (n > maxElements) {
            reallocate(checkedCapacity(grownCapacity(n)));
        }
    }

    long long grownCapacity(long long n) const {
        if (incStep > 0) {
            return n + incStep - n % incStep;
        }
        if (maxElements <= 0) {
            return n;
        }
        long long grown = maxElements;
        while (grown < n) {
            grown *= 2;
        }
        return grown;
    }

    static int checkedCapacity(long long n) {
        if (n > INT_MAX) {
            throw std::bad_array_new_length();
        }
        return static_cast<int>(n);
    }

    void reallocate(int newCapacity) {
        T* grown = new T[static_cast<std::size_t>(newCapacity)];
        if (numElements > 0) {
            std::copy(elements, elements + std::min(numElements, newCapacity), grown);
        }
        delete[] elements;
        elements = grown;
        maxElements = newCapacity;
    }

    int numElements = 0;
    int incStep = enlargeStep;
    int maxElements = 0;
    T* elements = nullptr;
};

}  // namespace VUtils
