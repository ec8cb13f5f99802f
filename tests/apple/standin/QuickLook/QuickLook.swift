@_exported import UIKit

public protocol QLPreviewItem: NSObjectProtocol {
    var previewItemURL: URL? { get }
}

extension NSURL: QLPreviewItem {
    public var previewItemURL: URL? { self as URL }
}

@MainActor public protocol QLPreviewControllerDataSource: AnyObject {
    func numberOfPreviewItems(in controller: QLPreviewController) -> Int
    func previewController(_ controller: QLPreviewController, previewItemAt index: Int) -> any QLPreviewItem
}

open class QLPreviewController: UIViewController {
    public weak var dataSource: (any QLPreviewControllerDataSource)?
    open override var standinContent: (kind: String, content: String)? {
        guard let dataSource, dataSource.numberOfPreviewItems(in: self) == 1 else { return ("preview", "of nothing") }
        return ("preview", dataSource.previewController(self, previewItemAt: 0).previewItemURL?.path ?? "of nothing")
    }
}
