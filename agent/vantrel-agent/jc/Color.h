#ifndef COLOR_H
#define COLOR_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSColor{

	extern CACHE_JAVA_CLASS(Color);

	extern CACHE_JAVA_STATIC_FIELD(Color, white);

	extern CACHE_JAVA_STATIC_FIELD(Color, WHITE);

	extern CACHE_JAVA_STATIC_FIELD(Color, lightGray);

	extern CACHE_JAVA_STATIC_FIELD(Color, LIGHT_GRAY);

	extern CACHE_JAVA_STATIC_FIELD(Color, gray);

	extern CACHE_JAVA_STATIC_FIELD(Color, GRAY);

	extern CACHE_JAVA_STATIC_FIELD(Color, darkGray);

	extern CACHE_JAVA_STATIC_FIELD(Color, DARK_GRAY);

	extern CACHE_JAVA_STATIC_FIELD(Color, black);

	extern CACHE_JAVA_STATIC_FIELD(Color, BLACK);

	extern CACHE_JAVA_STATIC_FIELD(Color, red);

	extern CACHE_JAVA_STATIC_FIELD(Color, RED);

	extern CACHE_JAVA_STATIC_FIELD(Color, pink);

	extern CACHE_JAVA_STATIC_FIELD(Color, PINK);

	extern CACHE_JAVA_STATIC_FIELD(Color, orange);

	extern CACHE_JAVA_STATIC_FIELD(Color, ORANGE);

	extern CACHE_JAVA_STATIC_FIELD(Color, yellow);

	extern CACHE_JAVA_STATIC_FIELD(Color, YELLOW);

	extern CACHE_JAVA_STATIC_FIELD(Color, green);

	extern CACHE_JAVA_STATIC_FIELD(Color, GREEN);

	extern CACHE_JAVA_STATIC_FIELD(Color, magenta);

	extern CACHE_JAVA_STATIC_FIELD(Color, MAGENTA);

	extern CACHE_JAVA_STATIC_FIELD(Color, cyan);

	extern CACHE_JAVA_STATIC_FIELD(Color, CYAN);

	extern CACHE_JAVA_STATIC_FIELD(Color, blue);

	extern CACHE_JAVA_STATIC_FIELD(Color, BLUE);

	extern CACHE_JAVA_FIELD(Color, value);

	extern CACHE_JAVA_CONSTRUCTOR(Color, 0);

	extern CACHE_JAVA_CONSTRUCTOR(Color, 1);

	extern CACHE_JAVA_CONSTRUCTOR(Color, 2);

	extern CACHE_JAVA_CONSTRUCTOR(Color, 3);

	extern CACHE_JAVA_CONSTRUCTOR(Color, 4);

	extern CACHE_JAVA_CONSTRUCTOR(Color, 5);

	extern CACHE_JAVA_CONSTRUCTOR(Color, 6);

	extern CACHE_JAVA_METHOD(Color, equals, 7);

	extern CACHE_JAVA_METHOD(Color, toString, 8);

	extern CACHE_JAVA_METHOD(Color, hashCode, 9);

	extern CACHE_JAVA_STATIC_METHOD(Color, decode, 10);

	extern CACHE_JAVA_METHOD(Color, getComponents, 11);

	extern CACHE_JAVA_METHOD(Color, getComponents, 12);

	extern CACHE_JAVA_METHOD(Color, getAlpha, 13);

	extern CACHE_JAVA_METHOD(Color, getRGB, 14);

	extern CACHE_JAVA_METHOD(Color, getRed, 15);

	extern CACHE_JAVA_METHOD(Color, getGreen, 16);

	extern CACHE_JAVA_METHOD(Color, getBlue, 17);

	extern CACHE_JAVA_METHOD(Color, brighter, 18);

	extern CACHE_JAVA_METHOD(Color, darker, 19);

	extern CACHE_JAVA_STATIC_METHOD(Color, getColor, 20);

	extern CACHE_JAVA_STATIC_METHOD(Color, getColor, 21);

	extern CACHE_JAVA_STATIC_METHOD(Color, getColor, 22);

	extern CACHE_JAVA_STATIC_METHOD(Color, HSBtoRGB, 23);

	extern CACHE_JAVA_STATIC_METHOD(Color, RGBtoHSB, 24);

	extern CACHE_JAVA_STATIC_METHOD(Color, getHSBColor, 25);

	extern CACHE_JAVA_METHOD(Color, getRGBComponents, 26);

	extern CACHE_JAVA_METHOD(Color, getRGBColorComponents, 27);

	extern CACHE_JAVA_METHOD(Color, getColorComponents, 28);

	extern CACHE_JAVA_METHOD(Color, getColorComponents, 29);

	extern CACHE_JAVA_METHOD(Color, getColorSpace, 30);

	extern CACHE_JAVA_METHOD(Color, createContext, 31);

	extern CACHE_JAVA_METHOD(Color, getTransparency, 32);

	jobject Color(JNIEnv *env, jint Int0, jint Int1, jint Int2, jint Int3); //0 (IIII)V

	jobject Color(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2); //1 (FFF)V

	jobject Color(JNIEnv *env, jobject ColorSpace0, jfloatArray Float1, jfloat Float2); //2 (Ljava/awt/color/ColorSpace;[FF)V

	jobject Color(JNIEnv *env, jint Int0, jint Int1, jint Int2); //3 (III)V

	jobject Color(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2, jfloat Float3); //4 (FFFF)V

	jobject Color(JNIEnv *env, jint Int0); //5 (I)V

	jobject Color(JNIEnv *env, jint Int0, jboolean Boolean1); //6 (IZ)V

	jboolean equals(JNIEnv *env, jobject _this, jobject Object0); //7 (Ljava/lang/Object;)Z

	jobject toString(JNIEnv *env, jobject _this); //8 ()Ljava/lang/String;

	jint hashCode(JNIEnv *env, jobject _this); //9 ()I

	jobject decode(JNIEnv *env, jobject String0); //10 (Ljava/lang/String;)Ljava/awt/Color;

	jobject getComponents(JNIEnv *env, jobject _this, jobject ColorSpace0, jfloatArray Float1); //11 (Ljava/awt/color/ColorSpace;[F)[F

	jobject getComponents(JNIEnv *env, jobject _this, jfloatArray Float0); //12 ([F)[F

	jint getAlpha(JNIEnv *env, jobject _this); //13 ()I

	jint getRGB(JNIEnv *env, jobject _this); //14 ()I

	jint getRed(JNIEnv *env, jobject _this); //15 ()I

	jint getGreen(JNIEnv *env, jobject _this); //16 ()I

	jint getBlue(JNIEnv *env, jobject _this); //17 ()I

	jobject brighter(JNIEnv *env, jobject _this); //18 ()Ljava/awt/Color;

	jobject darker(JNIEnv *env, jobject _this); //19 ()Ljava/awt/Color;

	jobject getColor(JNIEnv *env, jobject String0, jobject Color1); //20 (Ljava/lang/String;Ljava/awt/Color;)Ljava/awt/Color;

	jobject getColor(JNIEnv *env, jobject String0); //21 (Ljava/lang/String;)Ljava/awt/Color;

	jobject getColor(JNIEnv *env, jobject String0, jint Int1); //22 (Ljava/lang/String;I)Ljava/awt/Color;

	jint HSBtoRGB(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2); //23 (FFF)I

	jobject RGBtoHSB(JNIEnv *env, jint Int0, jint Int1, jint Int2, jfloatArray Float3); //24 (III[F)[F

	jobject getHSBColor(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2); //25 (FFF)Ljava/awt/Color;

	jobject getRGBComponents(JNIEnv *env, jobject _this, jfloatArray Float0); //26 ([F)[F

	jobject getRGBColorComponents(JNIEnv *env, jobject _this, jfloatArray Float0); //27 ([F)[F

	jobject getColorComponents(JNIEnv *env, jobject _this, jobject ColorSpace0, jfloatArray Float1); //28 (Ljava/awt/color/ColorSpace;[F)[F

	jobject getColorComponents(JNIEnv *env, jobject _this, jfloatArray Float0); //29 ([F)[F

	jobject getColorSpace(JNIEnv *env, jobject _this); //30 ()Ljava/awt/color/ColorSpace;

	jobject createContext(JNIEnv *env, jobject _this, jobject ColorModel0, jobject Rectangle1, jobject Rectangle2D2, jobject AffineTransform3, jobject RenderingHints4); //31 (Ljava/awt/image/ColorModel;Ljava/awt/Rectangle;Ljava/awt/geom/Rectangle2D;Ljava/awt/geom/AffineTransform;Ljava/awt/RenderingHints;)Ljava/awt/PaintContext;

	jint getTransparency(JNIEnv *env, jobject _this); //32 ()I

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
