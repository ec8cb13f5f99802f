/* The classes that the compiler knows by name, and the base classes of what Swift inherits from. */
@import ObjectiveC;

#pragma clang assume_nonnull begin

@interface NSCoder : NSObject
@end

@protocol NSCoding
- (void)encodeWithCoder:(NSCoder *)coder;
- (nullable instancetype)initWithCoder:(NSCoder *)coder;
@end

@protocol NSSecureCoding <NSCoding>
@property(class, readonly) BOOL supportsSecureCoding;
@end

@interface NSObject (NSKeyedUnarchiver)
+ (Class)classForKeyedUnarchiver;
@end

@interface NSString : NSObject
@end

@interface NSURL : NSObject
@end

@interface NSError : NSObject
@end

#pragma clang assume_nonnull end
