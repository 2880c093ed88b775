#include "Color.h"
#include "../common.h"
#include  <assert.h>

namespace NSColor{

	CACHE_JAVA_CLASS(Color) = NULL;

	//fields(27)

	CACHE_JAVA_STATIC_FIELD(Color, white) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, WHITE) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, lightGray) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, LIGHT_GRAY) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, gray) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, GRAY) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, darkGray) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, DARK_GRAY) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, black) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, BLACK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, red) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, RED) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, pink) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, PINK) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, orange) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, ORANGE) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, yellow) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, YELLOW) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, green) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, GREEN) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, magenta) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, MAGENTA) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, cyan) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, CYAN) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, blue) = NULL;

	CACHE_JAVA_STATIC_FIELD(Color, BLUE) = NULL;

	CACHE_JAVA_FIELD(Color, value) = NULL;

	//methods(33)

	CACHE_JAVA_CONSTRUCTOR(Color, 0) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Color, 1) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Color, 2) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Color, 3) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Color, 4) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Color, 5) = NULL;

	CACHE_JAVA_CONSTRUCTOR(Color, 6) = NULL;

	CACHE_JAVA_METHOD(Color, equals, 7) = NULL;

	CACHE_JAVA_METHOD(Color, toString, 8) = NULL;

	CACHE_JAVA_METHOD(Color, hashCode, 9) = NULL;

	CACHE_JAVA_STATIC_METHOD(Color, decode, 10) = NULL;

	CACHE_JAVA_METHOD(Color, getComponents, 11) = NULL;

	CACHE_JAVA_METHOD(Color, getComponents, 12) = NULL;

	CACHE_JAVA_METHOD(Color, getAlpha, 13) = NULL;

	CACHE_JAVA_METHOD(Color, getRGB, 14) = NULL;

	CACHE_JAVA_METHOD(Color, getRed, 15) = NULL;

	CACHE_JAVA_METHOD(Color, getGreen, 16) = NULL;

	CACHE_JAVA_METHOD(Color, getBlue, 17) = NULL;

	CACHE_JAVA_METHOD(Color, brighter, 18) = NULL;

	CACHE_JAVA_METHOD(Color, darker, 19) = NULL;

	CACHE_JAVA_STATIC_METHOD(Color, getColor, 20) = NULL;

	CACHE_JAVA_STATIC_METHOD(Color, getColor, 21) = NULL;

	CACHE_JAVA_STATIC_METHOD(Color, getColor, 22) = NULL;

	CACHE_JAVA_STATIC_METHOD(Color, HSBtoRGB, 23) = NULL;

	CACHE_JAVA_STATIC_METHOD(Color, RGBtoHSB, 24) = NULL;

	CACHE_JAVA_STATIC_METHOD(Color, getHSBColor, 25) = NULL;

	CACHE_JAVA_METHOD(Color, getRGBComponents, 26) = NULL;

	CACHE_JAVA_METHOD(Color, getRGBColorComponents, 27) = NULL;

	CACHE_JAVA_METHOD(Color, getColorComponents, 28) = NULL;

	CACHE_JAVA_METHOD(Color, getColorComponents, 29) = NULL;

	CACHE_JAVA_METHOD(Color, getColorSpace, 30) = NULL;

	CACHE_JAVA_METHOD(Color, createContext, 31) = NULL;

	CACHE_JAVA_METHOD(Color, getTransparency, 32) = NULL;

	jobject Color(JNIEnv *env, jint Int0, jint Int1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		if (!JAVA_CONSTRUCTOR(Color, 0)){
			INIT_CACHE_CONSTRUCTOR(env, Color, "(IIII)V", 0);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Color), JAVA_CONSTRUCTOR(Color, 0), Int0, Int1, Int2, Int3);
	}

	jobject Color(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		if (!JAVA_CONSTRUCTOR(Color, 1)){
			INIT_CACHE_CONSTRUCTOR(env, Color, "(FFF)V", 1);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Color), JAVA_CONSTRUCTOR(Color, 1), Float0, Float1, Float2);
	}

	jobject Color(JNIEnv *env, jobject ColorSpace0, jfloatArray Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		if (!JAVA_CONSTRUCTOR(Color, 2)){
			INIT_CACHE_CONSTRUCTOR(env, Color, "(Ljava/awt/color/ColorSpace;[FF)V", 2);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Color), JAVA_CONSTRUCTOR(Color, 2), ColorSpace0, Float1, Float2);
	}

	jobject Color(JNIEnv *env, jint Int0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		if (!JAVA_CONSTRUCTOR(Color, 3)){
			INIT_CACHE_CONSTRUCTOR(env, Color, "(III)V", 3);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Color), JAVA_CONSTRUCTOR(Color, 3), Int0, Int1, Int2);
	}

	jobject Color(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2, jfloat Float3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		if (!JAVA_CONSTRUCTOR(Color, 4)){
			INIT_CACHE_CONSTRUCTOR(env, Color, "(FFFF)V", 4);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Color), JAVA_CONSTRUCTOR(Color, 4), Float0, Float1, Float2, Float3);
	}

	jobject Color(JNIEnv *env, jint Int0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		if (!JAVA_CONSTRUCTOR(Color, 5)){
			INIT_CACHE_CONSTRUCTOR(env, Color, "(I)V", 5);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Color), JAVA_CONSTRUCTOR(Color, 5), Int0);
	}

	jobject Color(JNIEnv *env, jint Int0, jboolean Boolean1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		if (!JAVA_CONSTRUCTOR(Color, 6)){
			INIT_CACHE_CONSTRUCTOR(env, Color, "(IZ)V", 6);
		}
		return (jobject)env->NewObject(JAVA_CLASS(Color), JAVA_CONSTRUCTOR(Color, 6), Int0, Boolean1);
	}

	jboolean equals(JNIEnv *env, jobject _this, jobject Object0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, equals, "(Ljava/lang/Object;)Z", 7);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Color, equals, 7), Object0);
	}

	jobject toString(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, toString, "()Ljava/lang/String;", 8);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, toString, 8));
	}

	jint hashCode(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, hashCode, "()I", 9);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Color, hashCode, 9));
	}

	jobject decode(JNIEnv *env, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_STATIC_METHOD(env, Color, decode, "(Ljava/lang/String;)Ljava/awt/Color;", 10);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Color), JAVA_METHOD(Color, decode, 10), String0);
	}

	jobject getComponents(JNIEnv *env, jobject _this, jobject ColorSpace0, jfloatArray Float1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getComponents, "(Ljava/awt/color/ColorSpace;[F)[F", 11);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, getComponents, 11), ColorSpace0, Float1);
	}

	jobject getComponents(JNIEnv *env, jobject _this, jfloatArray Float0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getComponents, "([F)[F", 12);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, getComponents, 12), Float0);
	}

	jint getAlpha(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getAlpha, "()I", 13);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Color, getAlpha, 13));
	}

	jint getRGB(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getRGB, "()I", 14);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Color, getRGB, 14));
	}

	jint getRed(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getRed, "()I", 15);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Color, getRed, 15));
	}

	jint getGreen(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getGreen, "()I", 16);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Color, getGreen, 16));
	}

	jint getBlue(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getBlue, "()I", 17);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Color, getBlue, 17));
	}

	jobject brighter(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, brighter, "()Ljava/awt/Color;", 18);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, brighter, 18));
	}

	jobject darker(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, darker, "()Ljava/awt/Color;", 19);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, darker, 19));
	}

	jobject getColor(JNIEnv *env, jobject String0, jobject Color1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_STATIC_METHOD(env, Color, getColor, "(Ljava/lang/String;Ljava/awt/Color;)Ljava/awt/Color;", 20);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Color), JAVA_METHOD(Color, getColor, 20), String0, Color1);
	}

	jobject getColor(JNIEnv *env, jobject String0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_STATIC_METHOD(env, Color, getColor, "(Ljava/lang/String;)Ljava/awt/Color;", 21);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Color), JAVA_METHOD(Color, getColor, 21), String0);
	}

	jobject getColor(JNIEnv *env, jobject String0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_STATIC_METHOD(env, Color, getColor, "(Ljava/lang/String;I)Ljava/awt/Color;", 22);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Color), JAVA_METHOD(Color, getColor, 22), String0, Int1);
	}

	jint HSBtoRGB(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_STATIC_METHOD(env, Color, HSBtoRGB, "(FFF)I", 23);
		return (jint)env->CallStaticIntMethod(JAVA_CLASS(Color), JAVA_METHOD(Color, HSBtoRGB, 23), Float0, Float1, Float2);
	}

	jobject RGBtoHSB(JNIEnv *env, jint Int0, jint Int1, jint Int2, jfloatArray Float3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_STATIC_METHOD(env, Color, RGBtoHSB, "(III[F)[F", 24);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Color), JAVA_METHOD(Color, RGBtoHSB, 24), Int0, Int1, Int2, Float3);
	}

	jobject getHSBColor(JNIEnv *env, jfloat Float0, jfloat Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_STATIC_METHOD(env, Color, getHSBColor, "(FFF)Ljava/awt/Color;", 25);
		return (jobject)env->CallStaticObjectMethod(JAVA_CLASS(Color), JAVA_METHOD(Color, getHSBColor, 25), Float0, Float1, Float2);
	}

	jobject getRGBComponents(JNIEnv *env, jobject _this, jfloatArray Float0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getRGBComponents, "([F)[F", 26);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, getRGBComponents, 26), Float0);
	}

	jobject getRGBColorComponents(JNIEnv *env, jobject _this, jfloatArray Float0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getRGBColorComponents, "([F)[F", 27);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, getRGBColorComponents, 27), Float0);
	}

	jobject getColorComponents(JNIEnv *env, jobject _this, jobject ColorSpace0, jfloatArray Float1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getColorComponents, "(Ljava/awt/color/ColorSpace;[F)[F", 28);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, getColorComponents, 28), ColorSpace0, Float1);
	}

	jobject getColorComponents(JNIEnv *env, jobject _this, jfloatArray Float0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getColorComponents, "([F)[F", 29);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, getColorComponents, 29), Float0);
	}

	jobject getColorSpace(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getColorSpace, "()Ljava/awt/color/ColorSpace;", 30);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, getColorSpace, 30));
	}

	jobject createContext(JNIEnv *env, jobject _this, jobject ColorModel0, jobject Rectangle1, jobject Rectangle2D2, jobject AffineTransform3, jobject RenderingHints4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, createContext, "(Ljava/awt/image/ColorModel;Ljava/awt/Rectangle;Ljava/awt/geom/Rectangle2D;Ljava/awt/geom/AffineTransform;Ljava/awt/RenderingHints;)Ljava/awt/PaintContext;", 31);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Color, createContext, 31), ColorModel0, Rectangle1, Rectangle2D2, AffineTransform3, RenderingHints4);
	}

	jint getTransparency(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Color), "java/awt/Color");
		INIT_CACHE_METHOD(env, Color, getTransparency, "()I", 32);
		return (jint)env->CallIntMethod(_this, JAVA_METHOD(Color, getTransparency, 32));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Color, "java/awt/Color");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, white, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, WHITE, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, lightGray, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, LIGHT_GRAY, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, gray, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, GRAY, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, darkGray, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, DARK_GRAY, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, black, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, BLACK, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, red, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, RED, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, pink, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, PINK, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, orange, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, ORANGE, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, yellow, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, YELLOW, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, green, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, GREEN, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, magenta, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, MAGENTA, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, cyan, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, CYAN, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, blue, "Ljava/awt/Color;");
		INIT_CACHE_STATIC_FIELD(jni_env, Color, BLUE, "Ljava/awt/Color;");
		INIT_CACHE_FIELD(jni_env, Color, value, "I");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, Color);
		DELETE_CACHED_FIELD_REF(jni_env, Color, white);
		DELETE_CACHED_FIELD_REF(jni_env, Color, WHITE);
		DELETE_CACHED_FIELD_REF(jni_env, Color, lightGray);
		DELETE_CACHED_FIELD_REF(jni_env, Color, LIGHT_GRAY);
		DELETE_CACHED_FIELD_REF(jni_env, Color, gray);
		DELETE_CACHED_FIELD_REF(jni_env, Color, GRAY);
		DELETE_CACHED_FIELD_REF(jni_env, Color, darkGray);
		DELETE_CACHED_FIELD_REF(jni_env, Color, DARK_GRAY);
		DELETE_CACHED_FIELD_REF(jni_env, Color, black);
		DELETE_CACHED_FIELD_REF(jni_env, Color, BLACK);
		DELETE_CACHED_FIELD_REF(jni_env, Color, red);
		DELETE_CACHED_FIELD_REF(jni_env, Color, RED);
		DELETE_CACHED_FIELD_REF(jni_env, Color, pink);
		DELETE_CACHED_FIELD_REF(jni_env, Color, PINK);
		DELETE_CACHED_FIELD_REF(jni_env, Color, orange);
		DELETE_CACHED_FIELD_REF(jni_env, Color, ORANGE);
		DELETE_CACHED_FIELD_REF(jni_env, Color, yellow);
		DELETE_CACHED_FIELD_REF(jni_env, Color, YELLOW);
		DELETE_CACHED_FIELD_REF(jni_env, Color, green);
		DELETE_CACHED_FIELD_REF(jni_env, Color, GREEN);
		DELETE_CACHED_FIELD_REF(jni_env, Color, magenta);
		DELETE_CACHED_FIELD_REF(jni_env, Color, MAGENTA);
		DELETE_CACHED_FIELD_REF(jni_env, Color, cyan);
		DELETE_CACHED_FIELD_REF(jni_env, Color, CYAN);
		DELETE_CACHED_FIELD_REF(jni_env, Color, blue);
		DELETE_CACHED_FIELD_REF(jni_env, Color, BLUE);
		DELETE_CACHED_FIELD_REF(jni_env, Color, value);
	}

}
