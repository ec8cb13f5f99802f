public typealias simd_float2 = SIMD2<Float>
public typealias simd_float3 = SIMD3<Float>
public typealias simd_float4 = SIMD4<Float>

public struct simd_float4x4: Equatable {
    public var columns: (simd_float4, simd_float4, simd_float4, simd_float4)
    public init() { columns = (.zero, .zero, .zero, .zero) }
    public static func == (a: Self, b: Self) -> Bool { a.columns == b.columns }
}

/// Flat, column by column.
extension simd_float4x4: Codable {
    public init(from decoder: any Decoder) throws {
        self.init()
        var numbers = try decoder.unkeyedContainer()
        let column = { simd_float4(try numbers.decode(Float.self), try numbers.decode(Float.self), try numbers.decode(Float.self), try numbers.decode(Float.self)) }
        columns = (try column(), try column(), try column(), try column())
    }
    public func encode(to encoder: any Encoder) throws {
        var numbers = encoder.unkeyedContainer()
        for column in [columns.0, columns.1, columns.2, columns.3] {
            for row in 0..<4 { try numbers.encode(column[row]) }
        }
    }
}
