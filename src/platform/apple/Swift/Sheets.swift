// Previews and share sheets over the host's view.
import Foundation
import QuickLook
import UIKit
import VantorelSwift

/// Runs once: when told to, or when its sheet is gone without a word, as one that was never shown.
final class Closing {
    private var work: Context?
    init(_ work: Context) { self.work = work }
    deinit { run() }

    func run() {
        if let work { runOnMain(work) }
        work = nil
    }
}

/// Its own data source, which a preview does not retain.
final class PreviewSheet: QLPreviewController, QLPreviewControllerDataSource {
    var file: NSURL!
    var closing: Closing?

    func numberOfPreviewItems(in controller: QLPreviewController) -> Int { 1 }
    func previewController(_ controller: QLPreviewController, previewItemAt index: Int) -> any QLPreviewItem { file }

    override func viewDidDisappear(_ animated: Bool) {
        super.viewDidDisappear(animated)
        if isBeingDismissed { closing?.run() }
    }
}

/// Its completion handler would be too early: it comes for each activity that is called off, and the sheet stays.
final class ShareSheet: UIActivityViewController {
    var closing: Closing?

    override func viewDidDisappear(_ animated: Bool) {
        super.viewDidDisappear(animated)
        if isBeingDismissed { closing?.run() }
    }
}

/// Whatever the window shows stays below. Without a window the sheet is gone at once.
@MainActor func present(_ sheet: UIViewController, over window: UIWindow?) {
    guard var top = window?.rootViewController else { return }
    while let next = top.presentedViewController { top = next }
    if let transition = top.transitionCoordinator {  // UIKit presents nothing from what is on its way in or out
        transition.animate(alongsideTransition: nil) { _ in DispatchQueue.main.async { present(sheet, over: window) } }
    } else {
        place(sheet.popoverPresentationController, amid: top.view)
        top.present(sheet, animated: true)
    }
}

/// An iPad shows a share sheet as a popover, which has to come from somewhere.
@MainActor func place(_ popover: UIPopoverPresentationController?, amid view: UIView) {
    popover?.sourceView = view
    popover?.sourceRect = CGRect(x: view.bounds.midX, y: view.bounds.midY, width: 0, height: 0)
    popover?.permittedArrowDirections = []
}

@MainActor @_cdecl("vantorel_swift_preview_file")
public func vantorel_swift_preview_file(_ window: vantorel_swift_handle?, _ path: UnsafePointer<CChar>, _ closed: UnsafeMutableRawPointer) {
    let sheet = PreviewSheet()
    sheet.file = NSURL(fileURLWithPath: String(cString: path))
    sheet.closing = Closing(Context(closed))
    sheet.dataSource = sheet
    present(sheet, over: window.map { borrowed($0) })
}

@MainActor func share(_ item: Any, over window: vantorel_swift_handle?, _ closed: UnsafeMutableRawPointer) {
    let sheet = ShareSheet(activityItems: [item], applicationActivities: nil)
    sheet.closing = Closing(Context(closed))
    present(sheet, over: window.map { borrowed($0) })
}

@MainActor @_cdecl("vantorel_swift_share_file")
public func vantorel_swift_share_file(_ window: vantorel_swift_handle?, _ path: UnsafePointer<CChar>, _ closed: UnsafeMutableRawPointer) {
    share(URL(fileURLWithPath: String(cString: path)), over: window, closed)
}

@MainActor @_cdecl("vantorel_swift_share_text")
public func vantorel_swift_share_text(_ window: vantorel_swift_handle?, _ text: UnsafePointer<CChar>, _ closed: UnsafeMutableRawPointer) {
    share(String(cString: text), over: window, closed)
}

@MainActor @_cdecl("vantorel_swift_share_link")
public func vantorel_swift_share_link(_ window: vantorel_swift_handle?, _ url: UnsafePointer<CChar>, _ closed: UnsafeMutableRawPointer) {
    let text = String(cString: url)
    share(URL(string: text) as Any? ?? text, over: window, closed)
}
