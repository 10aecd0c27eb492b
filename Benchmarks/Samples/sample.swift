import Foundation

/// A queue that drops the oldest entry when it is full.
@MainActor
final class BoundedQueue<Element: Sendable> {
    private var storage: [Element] = []
    let capacity: Int

    init(capacity: Int = 64) {
        precondition(capacity > 0, "a queue needs room")
        self.capacity = capacity
    }

    @discardableResult
    func append(_ element: Element) -> Element? {
        defer { storage.append(element) }
        guard storage.count >= capacity else { return nil }
        return storage.removeFirst() // the oldest
    }

    subscript(index: Int) -> Element? {
        return storage.indices.contains(index) ? storage[index] : nil
    }
}

extension BoundedQueue where Element == String {
    var summary: String {
        """
        \(storage.count) of \(capacity), the last is
        "\(storage.last ?? "none")"
        """
    }
}

/* Numbers in several forms. */
let limits = [0x1F, 1_000, 3.25e-2]
for case let limit? in limits.map(Optional.some) where limit > 1 { print(limit) }
