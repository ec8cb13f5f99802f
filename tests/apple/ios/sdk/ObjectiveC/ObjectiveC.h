/* What the compiler itself asks of Objective-C's run time. */
typedef _Bool BOOL;

#pragma clang assume_nonnull begin

@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
- (instancetype)init;
@end

#pragma clang assume_nonnull end
